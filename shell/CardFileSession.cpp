// SPDX-License-Identifier: MIT
#include "shell/CardFileSession.h"

#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Process.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/CreatTable.h"
#include "cardfile/FieldCatalogue.h"
#include "cards/ShowTable.h"
#include "engine/CompactedMark.h"
#include "engine/DBEngine.h"
#include "forms/Default.h"
#include "forms/Hourglass.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/MainMenu.h"
#include "shell/RecentFiles.h"
#include "shell/SampleFiles.h"
#include "shell/SettingTable.h"

#include <QDir>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::file;

namespace {

constexpr QStringView compactedName = u"temp~.ddb";

void StoreSession() {
  const Session& session = Global();
  Write(settings::LastPath, session.FilePath);
  Write(settings::LastTitle, session.FileTitle);
  Write(settings::LastCard, session.CurCard);
}

void TellNotOpened(const QString& path, const EnvironmentFailure& failure) {
  // The file dialog was left without a choice.
  if (path.isEmpty()) return;
  ui::Notify(QString(texts::NotOpened).arg(path, QString::fromUtf8(failure.what())));
}

/// A database of another program opens, but has no cards.
void TellIfNoCardFile() {
  if (!TableExists(schema::Cards)) ui::Notify(QString(texts::NoCardFile).arg(Global().FilePath));
}

/// Where the choice of a sample starts: among the user's own copies, which are made when they are missing.
QString FolderOfSamples() {
  QString own = SamplesOfTheUser();
  if (CopyMissingSamples(SamplesOfTheProgram(), own)) return own;
  ui::Notify(QString(strings::firstrun::SamplesNotCopied).arg(own));
  return SamplesOfTheProgram();
}

}  // namespace

void CardFileSession::OpenCardFile() { OpenSample(Global().FilePath); }

bool CardFileSession::OpenSample(const QString& name) {
  return Trap([this, &name] { OpenAndShow(name); },
              [&name](const EnvironmentFailure& failure) { TellNotOpened(name, failure); });
}

void CardFileSession::OpenAndShow(const QString& path) {
  Session& session = Global();
  session.CardDb = session.DBEngine().OpenDatabase(path);
  session.FilePath = path;
  m_frame.SetCaption(session.FilePath);
  // From the recent list this is whatever the dialog last held: the name need not belong to this file.
  session.FileTitle = DialogData.FileTitle;
  session.NoFile = False;
  // A file without cards: the strip is blank now.
  if (m_frame.CardCountZero() == 1) {
    session.CurCard = 0;
    RememberFile();
    return;
  }
  session.CurCard = 1;
  m_frame.UnloadOtherForms();
  ui::Default<ShowTable>().Show();
  m_frame.SetCaption(session.FilePath);
  RememberFile();
  TellIfNoCardFile();
}

void CardFileSession::OpenLastFile() {
  Session& session = Global();
  Trap(
      [&session] {
        session.CardDb = session.DBEngine().OpenDatabase(session.FilePath);
        TellIfNoCardFile();
      },
      [&session](const EnvironmentFailure& failure) { TellNotOpened(session.FilePath, failure); });
}

void CardFileSession::Open() {
  DialogData.Filter = texts::Filter;
  DialogData.DialogTitle = texts::OpenTitle;
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

void CardFileSession::OpenSampleList() {
  DialogData.Filter = texts::Filter;
  DialogData.DialogTitle = texts::OpenSampleTitle;
  DialogData.InitDir = FolderOfSamples();
  DialogData.ShowOpen();
  const QString name = DialogData.FileName;
  // Without a choice too: what follows is then an opening that fails.
  if (!m_frame.UnloadOtherForms()) return;
  if (!OpenSample(name)) return;
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
  DialogData.Filter = texts::Filter;
  do {
    DialogData.DialogTitle = texts::NewTitle;
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
  DialogData.Filter = texts::Filter;
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
  ui::MsgBox(texts::DoesNotExist);
  m_menu.HideRecent(place);
  ForgetRecent(name);
}

void CardFileSession::RememberFile() {
  StoreSession();
  RecentSave();
}

void CardFileSession::LoadRecent() { m_menu.ShowRecent(RecentFiles()); }

void CardFileSession::QuitAndCompact() {
  Session& session = Global();
  Trap([&session] {
    const QString copy = SplitPath(session.FilePath) + compactedName.toString();
    StoreSession();
    session.File().Close();
    if (db::IsCompacted(session.FilePath)) return;
    session.DBEngine().CompactDatabase(session.FilePath, copy);
    session.DBEngine().ReplaceDatabase(copy, session.FilePath);
  });
  RecentSave();
  EndProcess();
}

}  // namespace velmora
