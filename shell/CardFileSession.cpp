// SPDX-License-Identifier: MIT
#include "shell/CardFileSession.h"

#include "base/settings/Settings.h"
#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Process.h"
#include "cardfile/CreatTable.h"
#include "cards/ShowTable.h"
#include "engine/DBEngine.h"
#include "forms/ComboBox.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/MsgBox.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/MainMenu.h"
#include "shell/RecentFiles.h"

#include <QDir>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView compactedName = u"temp~.ddb";
constexpr QStringView loadSection = u"Load";

}  // namespace

void CardFileSession::OpenCardFile() {
  Trap([this] {
    Session& session = Global();
    session.CardDb = session.DBEngine().OpenDatabase(session.FilePath);
    m_frame.SetCaption(session.FilePath);
    // From the recent list this is whatever the dialog last held: the name need not belong to this file.
    session.FileTitle = DialogData.FileTitle;
    session.NoFile = False;
    if (m_frame.CardCountZero() == 1) {
      session.CurCard = 0;
      m_frame.ClientLab().SetCaption({});
      m_frame.NumberLab().SetCaption({});
      return;
    }
    session.CurCard = 1;
    m_frame.UnloadOtherForms();
    ui::Default<ShowTable>().Show();
    m_frame.SetCaption(session.FilePath);
  });
}

void CardFileSession::Open() {
  DialogData.Filter = strings::file::Filter;
  DialogData.DialogTitle = strings::file::OpenTitle;
  DialogData.ShowOpen();
  // At once, before anything is tested: with no choice the next Quit stores an empty path, and the run after
  // that starts without a file.
  Global().FilePath = DialogData.FileName;
  if (Global().FilePath.trimmed().isEmpty() || ExistFile(DialogData.FileName) < 1) return;
  m_frame.UnloadOtherForms();
  OpenCardFile();
  RecentSave();
  LoadRecent();
}

bool CardFileSession::NameIsTaken() const {
  const QString directory = SplitPath(DialogData.FileName);
  for (const QString& name : FilesIn(directory)) {
    if (name.compare(DialogData.FileTitle, Qt::CaseInsensitive) == 0) return true;
  }
  const auto& open = Global().CardDb;
  return open != nullptr && open->Name() == DialogData.FileName;
}

void CardFileSession::CreateData() {
  DialogData.Filter = strings::file::Filter;
  do {
    DialogData.DialogTitle = strings::file::NewTitle;
    DialogData.ShowOpen();
    if (DialogData.FileName.trimmed().isEmpty()) return;
  } while (NameIsTaken());
  auto& wizard = ui::Default<CreatTable>();
  wizard.SetNewFileName(DialogData.FileName);
  wizard.SetNewFileTitle(DialogData.FileTitle);
  m_frame.AgentLab().Clear();
  m_frame.TelephonList().Clear();
  m_frame.NumberLab().SetCaption({});
  m_frame.ClientLab().SetCaption({});
  wizard.Show();
  wizard.BringToFront();
}

void CardFileSession::New() {
  CreateData();
  // The wizard is still on screen: the list is saved with the file that was open before.
  RecentSave();
  LoadRecent();
}

void CardFileSession::Repair() {
  // The title is whatever the last use left.
  DialogData.Filter = strings::file::Filter;
  DialogData.ShowOpen();
  if (DialogData.FileName.trimmed().isEmpty() || ExistFile(DialogData.FileName) <= 0) return;
  const ui::Hourglass hourglass;
  IgnoringErrors([this] { Global().DBEngine().RepairDatabase(DialogData.FileName); });
}

void CardFileSession::OpenRecent(int place) {
  const QString name = m_menu.RecentPath(place);
  if (ExistFile(name) > 0) {
    Global().FilePath = name;
    m_frame.UnloadOtherForms();
    OpenCardFile();
    return;
  }
  ui::MsgBox(strings::file::DoesNotExist);
  m_menu.HideRecent(place);
  ForgetRecent(name);
}

void CardFileSession::LoadRecent() { m_menu.ShowRecent(RecentFiles()); }

void CardFileSession::QuitAndCompact() {
  Session& session = Global();
  Trap([&session] {
    const QString copy = SplitPath(session.FilePath) + compactedName.toString();
    const QString section = loadSection.toString();
    SaveSetting(section, u"Path"_s, session.FilePath);
    SaveSetting(section, u"Name"_s, session.FileTitle);
    SaveSetting(section, u"Index"_s, QString::number(session.CurCard));
    session.File().Close();
    session.DBEngine().CompactDatabase(session.FilePath, copy);
    session.DBEngine().ReplaceDatabase(copy, session.FilePath);
  });
  RecentSave();
  EndProcess();
}

}  // namespace velmora
