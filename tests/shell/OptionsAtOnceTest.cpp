// SPDX-License-Identifier: MIT
// The tabs of the options that store as they are set, and the boxes that name a program.
#include "base/settings/Settings.h"
#include "base/system/Files.h"
#include "forms/Notice.h"
#include "tests/shell/OptionsFixture.h"
#include "tests/support/Messages.h"

#include <QFile>
#include <QSignalSpy>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString form = u"frmOptions"_s;
const QString notAProgram = u"This file was not taken: it is no program that can be started."_s;

class OptionsAtOnceTest : public OptionsFixture {
 protected:
  QString MakeProgram(const QString& name, bool executable = true) const {
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n");
    if (executable) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
  }
  /// The file dialog with what it was asked for, and a person who gives that path.
  void Choose(const QString& path) {
    ui::SetFileDialogResponder([this, path](const ui::FileDialog& dialog) {
      m_asked = dialog;
      return path;
    });
  }
  [[nodiscard]] static bool HasBackground() {
    return Screen(u"Main"_s).findChild<QWidget*>(u"pMainPic"_s)->property("hasPicture").toBool();
  }
  [[nodiscard]] static bool Pressed(int button) {
    return In<ui::SSRibbon>(form, u"rButton(%1)"_s.arg(button)).Value();
  }
  [[nodiscard]] static QString Program(int number) { return Stored(u"ShellApp"_s, QString::number(number)); }

  ui::FileDialog m_asked;
};

// The background.

TEST_F(OptionsAtOnceTest, CmdBackGround_PictureChosen_IsPreviewedAndStoredAtOnce) {
  Start();
  InOptions([this] {
    const QString picture = MakePicture(u"red.jpg"_s, Qt::red);
    Choose(picture);
    PressOption(u"cmdBackGround"_s);
    EXPECT_EQ(m_asked.Filter, u"(*.jpg)|*.jpg| (*.bmp)|*.bmp"_s);
    EXPECT_EQ(m_asked.InitDir, ProgramDir() + u"WPapers"_s);
    EXPECT_EQ(Text(u"txtBackGround"_s), picture);
    EXPECT_GT(PreviewColour().red(), 240);
    EXPECT_LT(PreviewColour().blue(), 20);
    EXPECT_EQ(Init(u"WallPap"_s), picture);
    EXPECT_FALSE(HasBackground());
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, Cancel_AfterCmdBackGround_PictureStaysInTheStoreUntilTheNextResLoaderMain) {
  Main& frame = Start();
  const QString picture = MakePicture(u"red.bmp"_s, Qt::red);
  InOptions([&] {
    Choose(picture);
    PressOption(u"cmdBackGround"_s);
    PressOption(u"CancelData"_s);
  });
  EXPECT_EQ(Init(u"WallPap"_s), picture);
  EXPECT_FALSE(HasBackground());
  frame.ResLoaderMain();
  EXPECT_TRUE(HasBackground());
}

TEST_F(OptionsAtOnceTest, Apply_AfterCmdBackGround_ShowsThePictureInTheStrip) {
  Start();
  InOptions([this] {
    Choose(MakePicture(u"red.bmp"_s, Qt::red));
    PressOption(u"cmdBackGround"_s);
    PressOption(u"cmdApply"_s);
    EXPECT_TRUE(HasBackground());
    PressOption(u"CancelData"_s);
  });
}

// A dialog that is left without a choice names no file, which does not exist either.
TEST_F(OptionsAtOnceTest, CmdBackGround_NoFileOrOneThatDoesNotExist_IsToldAndTakesTheBackgroundOff) {
  for (const QString& choice : {PathOf(u"gone.jpg"_s), QString()}) {
    SaveSetting(u"Init"_s, u"WallPap"_s, MakePicture(u"red.bmp"_s, Qt::red));
    Start();
    InOptions([&] {
      ASSERT_TRUE(HasPreview());
      Choose(choice);
      const MessageAnswers answers({ui::MsgAnswer::Ok});
      PressOption(u"cmdBackGround"_s);
      EXPECT_EQ(answers.Asked().value(0).Text, u"The file does not exist."_s);
      EXPECT_EQ(Text(u"txtBackGround"_s), u"(none)"_s);
      EXPECT_FALSE(HasPreview());
      EXPECT_EQ(Init(u"WallPap"_s), u"(none)"_s);
      PressOption(u"CancelData"_s);
    });
  }
}

TEST_F(OptionsAtOnceTest, CmdBackGround_FileThatIsNoPicture_LeavesTheOldPreviewAndIsTold) {
  SaveSetting(u"Init"_s, u"WallPap"_s, MakePicture(u"red.bmp"_s, Qt::red));
  Start();
  InOptions([this] {
    const QString letter = MakeProgram(u"letter.jpg"_s, false);
    Choose(letter);
    PressOption(u"cmdBackGround"_s);
    EXPECT_EQ(PreviewColour(), QColor(Qt::red));
    EXPECT_EQ(Init(u"WallPap"_s), letter);
    EXPECT_EQ(ui::NoticeInView(), u"This picture cannot be loaded."_s);
    PressOption(u"cmdApply"_s);
    EXPECT_TRUE(HasBackground()) << "what was there stays";
    EXPECT_EQ(ui::NoticeInView(), u"This picture cannot be loaded."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, Load_PictureThatIsGone_IsToldAndStaysNamed) {
  SaveSetting(u"Init"_s, u"WallPap"_s, PathOf(u"gone.jpg"_s));
  Start();
  InOptions([this] {
    QApplication::processEvents();
    EXPECT_EQ(Text(u"txtBackGround"_s), PathOf(u"gone.jpg"_s));
    EXPECT_FALSE(HasPreview());
    EXPECT_EQ(ui::NoticeInView(), u"This picture cannot be loaded."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, ChkUseBackground_Cleared_TakesTheBackgroundOffAtOnce) {
  SaveSetting(u"Init"_s, u"WallPap"_s, MakePicture(u"red.bmp"_s, Qt::red));
  Start();
  InOptions([this] {
    ClickOption(u"chkUseBackground"_s);
    EXPECT_FALSE(HasPreview());
    EXPECT_EQ(Text(u"txtBackGround"_s), u"(none)"_s);
    EXPECT_EQ(Init(u"UseBackground"_s), u"0"_s);
    EXPECT_EQ(Init(u"WallPap"_s), u"(none)"_s);
    EXPECT_TRUE(HasBackground());
    PressOption(u"CancelData"_s);
  });
  InOptions([this] {
    EXPECT_EQ(In<ui::CheckBox>(form, u"chkUseBackground"_s).Value(), 0);
    EXPECT_EQ(Text(u"txtBackGround"_s), u"(none)"_s);
    PressOption(u"EditData"_s);
  });
  EXPECT_FALSE(HasBackground());
}

TEST_F(OptionsAtOnceTest, ChkUseBackground_Ticked_TakesTheTypedName) {
  SaveSetting(u"Init"_s, u"UseBackground"_s, u"0"_s);
  Start();
  const std::pair<QString, bool> names[]{
      {MakePicture(u"red.bmp"_s, Qt::red), true}, {u"(default)"_s, true}, {u"(none)"_s, false}};
  for (const auto& [name, shown] : names) {
    SaveSetting(u"Init"_s, u"UseBackground"_s, u"0"_s);
    InOptions([&] {
      TypeOption(u"txtBackGround"_s, name);
      ClickOption(u"chkUseBackground"_s);
      EXPECT_EQ(HasPreview(), shown) << name.toStdString();
      EXPECT_EQ(Init(u"UseBackground"_s), u"1"_s);
      EXPECT_EQ(Init(u"WallPap"_s), name);
      PressOption(u"CancelData"_s);
    });
  }
}

TEST_F(OptionsAtOnceTest, TxtBackGround_TypedOverWhileTicked_TellsWhatMakesItCount) {
  Start();
  InOptions([this] {
    TypeOption(u"txtBackGround"_s, u"(none)"_s);
    QTest::keyClick(&In<QWidget>(form, u"txtBackGround"_s), Qt::Key_Tab);
    EXPECT_EQ(ui::NoticeInView(), u"A typed name counts when \"Use background\" is ticked after it."_s);
    EXPECT_EQ(Init(u"WallPap"_s), QString());
    PressOption(u"CancelData"_s);
  });
}

// The shortcut buttons.

TEST_F(OptionsAtOnceTest, RButton_Pressed_ReleasesTheOthersAndShowsItsProgram) {
  for (const QString& key : {u"1"_s, u"2"_s, u"3"_s}) SaveSetting(u"ShellApp"_s, key, u"/bin/p"_s + key);
  Start();
  InOptions([this] {
    EXPECT_EQ(Text(u"txtNameFile"_s), u"/bin/p1"_s);
    PressOption(u"rButton(1)"_s);
    EXPECT_EQ(Text(u"txtNameFile"_s), u"/bin/p2"_s);
    PressOption(u"rButton(2)"_s);
    EXPECT_EQ(Text(u"txtNameFile"_s), u"/bin/p3"_s);
    EXPECT_FALSE(Pressed(0) || Pressed(1));
    EXPECT_TRUE(Pressed(2));
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, CmdSavePath_ButtonPressed_StoresThePathUnderItsKeyAtOnce) {
  Start();
  InOptions([this] {
    const QString program = MakeProgram(u"writer"_s);
    PressOption(u"rButton(1)"_s);
    Choose(program);
    PressOption(u"cmdSearchFile"_s);
    EXPECT_EQ(m_asked.Filter, u"(*.exe)|*.exe"_s);
    EXPECT_EQ(Text(u"txtNameFile"_s), program);
    PressOption(u"cmdSavePath"_s);
    EXPECT_EQ(Program(2), program);
    EXPECT_EQ(Program(1) + Program(3), QString());
    PressOption(u"CancelData"_s);
    EXPECT_EQ(Program(2), program);
  });
}

TEST_F(OptionsAtOnceTest, CmdSavePath_EmptyPath_BringsTheBuiltInChoiceBack) {
  SaveSetting(u"ShellApp"_s, u"1"_s, u"/bin/true"_s);
  Start();
  InOptions([this] {
    PressOption(u"rButton(0)"_s);
    TypeOption(u"txtNameFile"_s, {});
    PressOption(u"cmdSavePath"_s);
    EXPECT_EQ(Stored(u"ShellApp"_s, u"1"_s), QString());
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, CmdSavePath_NoButtonPressed_StoresNothingAndTells) {
  Start();
  InOptions([this] {
    TypeOption(u"txtNameFile"_s, MakeProgram(u"writer"_s));
    PressOption(u"cmdSavePath"_s);
    EXPECT_EQ(Program(1) + Program(2) + Program(3), QString());
    EXPECT_EQ(ui::NoticeInView(), u"Nothing was saved: press one of the three buttons first."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, CmdSavePath_FileThatDoesNotExist_StoresNothingAndTells) {
  SaveSetting(u"ShellApp"_s, u"1"_s, u"/bin/true"_s);
  Start();
  InOptions([this] {
    PressOption(u"rButton(0)"_s);
    TypeOption(u"txtNameFile"_s, PathOf(u"gone"_s));
    PressOption(u"cmdSavePath"_s);
    EXPECT_EQ(Program(1), u"/bin/true"_s);
    EXPECT_EQ(ui::NoticeInView(), u"Nothing was saved: there is no such file."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, CmdSearchFile_FileThatCannotBeStarted_IsRefusedAndTold) {
  Start();
  InOptions([this] {
    for (const QString& path : {MakeProgram(u"letter.txt"_s, false), PathOf(u"gone"_s)}) {
      Choose(path);
      PressOption(u"cmdSearchFile"_s);
      EXPECT_EQ(Text(u"txtNameFile"_s), QString());
      EXPECT_EQ(ui::NoticeInView(), notAProgram);
      ui::DropNotice();
    }
    PressOption(u"CancelData"_s);
  });
}

// The browser.

TEST_F(OptionsAtOnceTest, CmdAddFile_ProgramOrEntryForOne_GoesToTheBox) {
  Start();
  const QString entry = PathOf(u"web.desktop"_s);
  QFile file(entry);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Desktop Entry]\nType=Application\nName=Web\nExec=true %u\n");
  file.close();
  InOptions([&] {
    for (const QString& path : {MakeProgram(u"browser"_s), entry}) {
      Choose(path);
      PressOption(u"cmdAddFile"_s);
      EXPECT_EQ(m_asked.Filter, u"(*.exe)|*.exe"_s);
      EXPECT_EQ(Text(u"txtBrowser"_s), path);
    }
    Choose(MakeProgram(u"letter.txt"_s, false));
    PressOption(u"cmdAddFile"_s);
    EXPECT_EQ(Text(u"txtBrowser"_s), entry);
    EXPECT_EQ(ui::NoticeInView(), notAProgram);
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(Init(u"Browser"_s), entry);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, TxtBrowser_LeftWithAFileThatDoesNotExist_IsEmptiedBeforeApply) {
  SaveSetting(u"Init"_s, u"Browser"_s, u"/bin/true"_s);
  Start();
  InOptions([this] {
    TypeOption(u"txtBrowser"_s, PathOf(u"gone"_s));
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(Text(u"txtBrowser"_s), QString());
    EXPECT_EQ(Init(u"Browser"_s), QString());
    TypeOption(u"txtBrowser"_s, PathOf(u"gone"_s));
    QTest::keyClick(&In<QWidget>(form, u"txtBrowser"_s), Qt::Key_Tab);
    EXPECT_EQ(ui::NoticeInView(), u"There is no such file: the box was emptied."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsAtOnceTest, TxtBrowser_LeftForOkWithAFileThatDoesNotExist_IsToldInTheStrip) {
  Start();
  InOptions([this] {
    TypeOption(u"txtBrowser"_s, PathOf(u"gone"_s));
    PressOption(u"EditData"_s);
  });
  // It waits until the dialog is gone.
  const QString told = u"There is no such file: the box was emptied."_s;
  EXPECT_TRUE(QTest::qWaitFor([&told] { return ui::NoticeInView() == told; }));
}

TEST_F(OptionsAtOnceTest, TxtBrowser_LeftWithAFile_KeepsIt) {
  Start();
  InOptions([this] {
    const QString program = MakeProgram(u"browser"_s);
    TypeOption(u"txtBrowser"_s, program);
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(Init(u"Browser"_s), program);
    EXPECT_EQ(ui::NoticeInView(), QString());
    PressOption(u"CancelData"_s);
  });
}

}  // namespace
}  // namespace velmora
