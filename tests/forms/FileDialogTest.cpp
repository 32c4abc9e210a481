// SPDX-License-Identifier: MIT
#include "forms/FileDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

void Touch(const QString& path) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

class FileDialogTest : public ::testing::Test {
 protected:
  FileDialogTest() {
    SetFileDialogResponder({});
    m_dialog.Filter = u"Database,*.ddb|*.ddb"_s;
    m_dialog.DialogTitle = u"Open"_s;
    m_dialog.InitDir = m_folder.path();
  }
  ~FileDialogTest() override { SetFileDialogResponder({}); }

  [[nodiscard]] QString In(const QString& name) const { return m_folder.filePath(name); }
  /// Brings the dialog up and runs `act` on it once it stands.
  void Show(std::function<void(QFileDialog&)> act) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      poll.stop();
      act(*dialog);
    });
    poll.start(1);
    m_dialog.ShowOpen();
  }
  /// Types a name and Enter, again for as long as the dialog is still busy with reading its directory.
  void Type(const QString& name) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      auto* box = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
      box->setFocus();
      box->clear();
      QTest::keyClicks(box, name);
      QTest::keyClick(box, Qt::Key_Return);
    });
    poll.start(20);
    m_dialog.ShowOpen();
  }
  QTemporaryDir m_folder;
  FileDialog m_dialog;
};

TEST_F(FileDialogTest, Dialog_OpenForm_BearsNameTitleAndFilter) {
  Show([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), u"DialogData"_s);
    EXPECT_EQ(dialog.windowTitle(), u"Open"_s);
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.nameFilters(), QStringList{u"Database,*.ddb (*.ddb)"_s});
    dialog.reject();
  });
}

TEST_F(FileDialogTest, Dialog_FilterOfPrograms_ShowsAllFilesUnderItsLabel) {
  m_dialog.Filter = u"(*.exe)|*.exe"_s;
  Show([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters().size(), 1);
    EXPECT_TRUE(dialog.nameFilters().value(0).startsWith(u"(*.exe)"_s));
    EXPECT_TRUE(dialog.nameFilters().value(0).endsWith(u"(*)"_s));
    const auto* filters = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
    ASSERT_NE(filters, nullptr);
    EXPECT_EQ(filters->currentText().trimmed(), u"(*.exe)"_s);
    dialog.reject();
  });
  Type(u"program"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"program"_s)) << "a program has no ending";
}

TEST_F(FileDialogTest, ShowOpen_ExistingFile_GivesPathAndTitle) {
  Touch(In(u"shop.ddb"_s));
  Type(u"shop.ddb"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"shop.ddb"_s));
  EXPECT_EQ(m_dialog.FileTitle, u"shop.ddb"_s);
}

TEST_F(FileDialogTest, ShowOpen_TypedNameOfNoFile_IsTaken) {
  Type(u"new one.ddb"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"new one.ddb"_s));
}

TEST_F(FileDialogTest, ShowOpen_NewNameWithoutEnding_GetsTheFilters) {
  Type(u"fresh"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"fresh.ddb"_s));
  EXPECT_EQ(m_dialog.FileTitle, u"fresh.ddb"_s);
}

TEST_F(FileDialogTest, ShowOpen_ExistingNameWithoutEnding_StaysAsItIs) {
  Touch(In(u"plain"_s));
  Type(u"plain"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"plain"_s));
}

TEST_F(FileDialogTest, ShowOpen_NewNameWithAnotherEnding_StaysAsItIs) {
  Type(u"data.old"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"data.old"_s));
}

TEST_F(FileDialogTest, ShowOpen_LeftWithoutAChoice_GivesAnEmptyNameAndKeepsTheTitle) {
  m_dialog.FileName = u"/before/it.ddb"_s;
  m_dialog.FileTitle = u"it.ddb"_s;
  Show([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(m_dialog.FileName, QString());
  EXPECT_EQ(m_dialog.FileTitle, u"it.ddb"_s);
}

TEST_F(FileDialogTest, ShowOpen_SecondUse_KeepsWhatWasSetAndTheDirectory) {
  ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"inner"_s));
  Type(u"inner/a.ddb"_s);
  EXPECT_EQ(m_dialog.Filter, u"Database,*.ddb|*.ddb"_s);
  EXPECT_EQ(m_dialog.DialogTitle, u"Open"_s);
  Type(u"b.ddb"_s);
  EXPECT_EQ(m_dialog.FileName, In(u"inner/b.ddb"_s));
}

TEST_F(FileDialogTest, Responder_NameWithoutDirectory_StandsInTheDirectoryInView) {
  SetFileDialogResponder([](const FileDialog&) { return u"c.ddb"_s; });
  m_dialog.ShowOpen();
  EXPECT_EQ(m_dialog.FileName, In(u"c.ddb"_s));
  SetFileDialogResponder([](const FileDialog&) { return QString(); });
  m_dialog.ShowOpen();
  EXPECT_EQ(m_dialog.FileName, QString());
}

}  // namespace
}  // namespace velmora::ui
