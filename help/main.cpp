// SPDX-License-Identifier: MIT
#include "forms/ProgramLook.h"
#include "help/HelpRequest.h"
#include "help/HelpWindow.h"
#include "help/OneViewer.h"
#include "resources/strings.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QTextStream>

#include <chrono>
#include <cstdio>
#include <optional>

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using velmora::HelpRequest;
using velmora::HelpWindow;
using velmora::OneViewer;
namespace texts = velmora::strings::help;

constexpr int CannotStart = 2;
constexpr int CannotShow = 1;
/// How long a start waits for the viewer that is up already.
constexpr auto Patience = 5s;

void Say(FILE* where, const QString& text) { QTextStream(where) << text << '\n'; }

/// Without one the toolkit would end the process as if it had crashed.
bool HasDisplay(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (qstrcmp(argv[i], "-platform") == 0) return true;
  }
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void TellFailure(QWidget* parent, const QString& why) {
  QMessageBox box(QMessageBox::Critical, texts::Title, why, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

int Run(const HelpRequest& request) {
  OneViewer viewer;
  if (viewer.Join(request, Patience) == OneViewer::Outcome::HandedOver) return 0;
  HelpWindow window;
  const auto show = [&window](const HelpRequest& wanted) {
    QString why;
    const bool shown = window.ShowTopic(wanted, why);
    if (shown || window.isVisible()) window.ComeToFront(wanted.ActivationToken);
    if (!shown) TellFailure(window.isVisible() ? &window : nullptr, why);
    return shown;
  };
  QObject::connect(&viewer, &OneViewer::Asked, &window, show, Qt::QueuedConnection);
  // While the failure was told, another start may have brought something to show.
  if (!show(request) && !window.isVisible()) return CannotShow;
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
  if (arguments.contains(u"--help"_s)) {
    Say(stdout, texts::Usage);
    return 0;
  }
  if (arguments.contains(u"--version"_s)) {
    Say(stdout, u"velmora-help "_s + QStringLiteral(VELMORA_VERSION));
    return 0;
  }
  if (!HasDisplay(argc, argv)) {
    Say(stderr, texts::NoDisplay);
    return CannotStart;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"velmora-help"_s);
  QApplication::setApplicationDisplayName(texts::Title);
  QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
  QGuiApplication::setDesktopFileName(u"org.velmora.Velmora"_s);
  QApplication::setWindowIcon(QIcon(u":/icons/velmora.svg"_s));
  velmora::ui::ApplyProgramLook(application);
  // The toolkit has taken its own arguments out by now.
  std::optional<HelpRequest> request = velmora::ReadArguments(QApplication::arguments().mid(1));
  if (!request) {
    Say(stderr, texts::Usage);
    return CannotStart;
  }
  request->ActivationToken = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
  return Run(*request);
}
