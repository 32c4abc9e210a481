// SPDX-License-Identifier: MIT
#include "tests/shell/MainFixture.h"

#include "base/settings/Settings.h"
#include "base/system/Process.h"
#include "base/system/Shell.h"
#include "cardfile/MakeCardFile.h"
#include "forms/Screen.h"
#include "frame/Session.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace velmora {

using namespace Qt::StringLiterals;

MainFixture::MainFixture() {
  QFile::remove(SettingsFile());
  Global() = Session();
  SetProcessEnder([this] { ++m_ends; });
  SetStarter([this](const ProgramStart& start) {
    m_started += start;
    return ProcessNumber(0);
  });
  FailOnUnexpectedMessages();
  ui::SetFileDialogResponder([this](const ui::FileDialog& dialog) {
    m_titles += dialog.DialogTitle;
    m_folders += dialog.InitDir;
    if (!m_choices.isEmpty()) return m_choices.takeFirst();
    ADD_FAILURE() << "the file dialog came once too often";
    return QString();
  });
}

MainFixture::~MainFixture() {
  EXPECT_TRUE(m_choices.isEmpty()) << "the file dialog did not come for "
                                   << m_choices.join(u' ').toStdString();
  if (m_main) m_main->UnloadOtherForms();
  m_main.reset();
  Global() = Session();
  SetProcessEnder({});
  SetStarter({});
}

QString MainFixture::MakeFile(const QString& name, const std::vector<int>& cards) {
  const Session before = Global();
  CardDesign design{.MainField = u"Company"_s, .Pages = {}};
  design.Pages[0].Fields.push_back({.Name = u"City"_s, .Kind = FieldKind::Text});
  MakeCardFile(PathOf(name), design);
  for (const int card : cards) {
    db::Recordset rows = Global().File().OpenRecordset(u"MainData");
    rows.AddNew();
    rows.Set(u"Index@", card);
    rows.Set(u"Company", u"Card %1"_s.arg(card));
    rows.Set(u"City", u"Łódź"_s);
    rows.Set(u"Remarks", u" "_s);
    rows.Update();
  }
  Global() = before;
  return PathOf(name);
}

void MainFixture::UseOwnDesktop() {
  m_environment.Set("XDG_DATA_HOME", QFile::encodeName(PathOf(u"desktop"_s)));
  m_environment.Set("XDG_DATA_DIRS", QFile::encodeName(PathOf(u"desktop"_s)));
}

void MainFixture::InstallProgram(const QString& file, const QByteArray& lines) const {
  const QString folder = PathOf(u"desktop/applications"_s);
  ASSERT_TRUE(QDir().mkpath(folder));
  QFile entry(folder + u'/' + file);
  ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
  const QByteArray name = QFileInfo(file).completeBaseName().toUtf8();
  entry.write("[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + name + " --new %f\n" + lines);
}

Main& MainFixture::StartWith(const QString& file) {
  if (m_main) m_main->UnloadOtherForms();
  m_main.reset();
  Global() = Session();
  m_main = std::make_unique<Main>();
  QTimer waiting;
  QObject::connect(&waiting, &QTimer::timeout, &waiting, [] {
    if (ui::Screen* welcome = ui::FindScreen(u"frmTut"_s); welcome != nullptr) welcome->Unload();
  });
  if (m_turnsWelcomeDown) waiting.start();
  m_main->Load(file);
  return *m_main;
}

Main& MainFixture::StartOn(const QString& path, int card) {
  SaveSetting(u"Load"_s, u"Path"_s, path);
  SaveSetting(u"Load"_s, u"Index"_s, QString::number(card));
  return Start();
}

QAction& MainFixture::Entry(const QString& name) const { return Find<QAction>(name); }

void MainFixture::Trigger(const QString& name) const { Entry(name).trigger(); }

QStringList MainFixture::OpenScreens() {
  QStringList names;
  for (const ui::Screen* screen : ui::Forms()) names << screen->ScreenName();
  return names;
}

QStringList MainFixture::StoredRecent() {
  QStringList paths;
  for (int place = 0; place < 4; ++place) paths << Stored(u"Init"_s, u"File%1"_s.arg(place));
  return paths;
}

QString MainFixture::Stored(const QString& section, const QString& key) { return GetSetting(section, key); }

}  // namespace velmora
