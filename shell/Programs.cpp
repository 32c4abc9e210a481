// SPDX-License-Identifier: MIT
#include "shell/Programs.h"

#include "base/system/DesktopPrograms.h"
#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Shell.h"
#include "base/system/StartedProcess.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"
#include "shell/BringToFront.h"
#include "shell/SettingTable.h"

#include <QCoreApplication>

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::programs;

namespace {

/// What stands behind a shortcut button for which the user has chosen nothing: the desktop's program for
/// files of that type.
struct BuiltInChoice {
  QStringView MimeType;
  strings::Text NoneInstalled;
};

constexpr std::array builtInChoices{BuiltInChoice{u"text/plain", texts::NoTextEditor},
                                    BuiltInChoice{u"image/png", texts::NoPictureEditor},
                                    BuiltInChoice{u"inode/directory", texts::NoFileManager}};

/// The programs that tell about the system, the most telling first.
const QStringList& SystemInformation() {
  static const QStringList entries{u"hardinfo2.desktop"_s,
                                   u"hardinfo.desktop"_s,
                                   u"org.kde.kinfocenter.desktop"_s,
                                   u"kinfocenter.desktop"_s,
                                   u"org.gnome.SystemMonitor.desktop"_s,
                                   u"gnome-system-monitor.desktop"_s};
  return entries;
}

StartedProcess& CalcTask() {
  static StartedProcess task;
  return task;
}

/// Starts a program; its number, or nothing and a notice.
std::optional<ProcessNumber> TryStart(const ProgramStart& start) {
  ProcessNumber number = 0;
  const bool started =
      Trap([&] { number = Shell(start); },
           [&start](const auto& /*failure*/) { ui::Notify(QString(texts::CannotStart).arg(start.Program)); });
  return started ? std::optional(number) : std::nullopt;
}

bool TryStartPath(const QString& path, const QStringList& arguments = {}) {
  return Trap([&] { Shell(path, arguments); },
              [&path](const auto& /*failure*/) { ui::Notify(QString(texts::CannotStart).arg(path)); });
}

/// The same for an entry of the desktop; a notice says when there is none.
std::optional<ProcessNumber> TryStart(const std::optional<DesktopEntry>& entry,
                                      const QString& noneInstalled) {
  const std::optional<ProgramStart> start = entry ? entry->StartWith({}) : std::nullopt;
  if (start) return TryStart(*start);
  ui::Notify(noneInstalled);
  return std::nullopt;
}

/// The help viewer, which lies beside this program, on the file of the help.
void StartHelp(const QStringList& topic) {
  const QString viewer = PathOfFile(QCoreApplication::applicationFilePath()) + u"velmora-help"_s;
  Trap([&] { Shell(viewer, QStringList{ProgramDir() + u"Velmora"_s} + topic); },
       [](const auto& /*failure*/) { ui::Notify(texts::NoHelp); });
}

}  // namespace

void OpenHelpContents() { StartHelp({}); }

void OpenHelpTopic(int number) {
  if (number == topics::None) {
    StartHelp({});
  } else {
    StartHelp({QString::number(number)});
  }
}

void OpenWebPage() {
  const QString browser = Read(settings::Browser);
  if (browser.trimmed().isEmpty()) {
    ui::MsgBox(texts::NoBrowser);
    // Tried all the same; the message has said what will come of it.
    IgnoringErrors([] { Shell(QString(), {strings::WebAddress}); });
  } else {
    TryStartPath(browser, {strings::WebAddress});
  }
}

void RunCalculator() {
  if (CalcTask().IsRunning()) {
    if (!BringToFront(CalcTask().Number())) ui::Notify(texts::CalculatorRuns);
    return;
  }
  const auto number = TryStart(DesktopPrograms().OfCategory(u"Calculator"_s), texts::NoCalculator);
  if (number) CalcTask().Watch(*number);
}

bool RunProgram(int number) {
  const auto place = static_cast<std::size_t>(number - 1);
  const QString chosen = Read(settings::ShortcutPrograms.at(place));
  if (!chosen.isEmpty()) return TryStartPath(chosen);
  const BuiltInChoice& choice = builtInChoices.at(place);
  return TryStart(DesktopPrograms().ForType(choice.MimeType.toString()), choice.NoneInstalled).has_value();
}

void StartSysInfo() {
  const std::optional<DesktopEntry> entry = DesktopPrograms().FirstOf(SystemInformation());
  if (entry) {
    TryStart(entry, {});
  } else {
    ui::MsgBox(texts::NoSystemInformation);
  }
}

}  // namespace velmora
