// SPDX-License-Identifier: MIT
#include "shell/CardFileSession.h"

#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Process.h"
#include "cardfile/CreatTable.h"
#include "cards/ShowTable.h"
#include "engine/DBEngine.h"
#include "forms/Default.h"
#include "forms/Hourglass.h"
#include "forms/MsgBox.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/MainMenu.h"
#include "shell/RecentFiles.h"
#include "shell/SettingTable.h"

#include <QDir>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView compactedName = u"temp~.ddb";

}  // namespace

void CardFileSession::OpenCardFile() {
  Trap([this] {
    Session& session = Global();
    session.CardDb = session.DBEngine().OpenDatabase(session.FilePath);
    m_frame.SetCaption(session.FilePath);
    // From the recent list this is whatever the dialog last held: the name need not belong to this file.
    session.FileTitle = DialogData.FileTitle;
    session.NoFile = False;
    // A file without cards: the strip is blank now.
    if (m_frame.CardCountZero() == 1) {
      session.CurCard = 0;
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
  if (!CloseScreens()) return;
  OpenCardFile();
  RecentSave();
  LoadRecent();
}

bool CardFileSession::CloseScreens() {
  if (m_frame.UnloadOtherForms()) return true;
  // The card that stays open is the open file's, and so must be the path that the next Quit stores.
  Session& session = Global();
  if (session.CardDb != nullptr) session.FilePath = session.CardDb->Name();
  return false;
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
  m_frame.BlankCard();
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
    if (CloseScreens()) OpenCardFile();
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
    Write(settings::LastPath, session.FilePath);
    Write(settings::LastTitle, session.FileTitle);
    Write(settings::LastCard, session.CurCard);
    session.File().Close();
    session.DBEngine().CompactDatabase(session.FilePath, copy);
    session.DBEngine().ReplaceDatabase(copy, session.FilePath);
  });
  RecentSave();
  EndProcess();
}

}  // namespace velmora
