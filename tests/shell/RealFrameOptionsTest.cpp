// SPDX-License-Identifier: MIT
// The options in the real frame: what they load, what OK, Apply and Cancel leave.
#include "base/settings/Settings.h"
#include "forms/Notice.h"
#include "tests/shell/OptionsFixture.h"

#include <QFile>
#include <QMdiSubWindow>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

using RealFrameOptionsTest = OptionsFixture;

/// A card file with fields of every kind, whose options are those rows.
const QString optionRows = u"Select txtKey, tVal from tOptions"_s;

TEST_F(RealFrameOptionsTest, Load_FileWithOptions_ListsTextAndNumberFieldsAndSelectsTheStored) {
  RunOn(MakeWide({{u"FieldDial"_s, u" tel "_s}, {u"Fieldfax"_s, u"FAX"_s}}));
  InOptions([this] {
    for (const QString& list : {u"cmdListFields"_s, u"cmbListFax"_s}) {
      QStringList entries;
      for (int i = 0; i < List(list).ListCount(); ++i) entries += List(list).List(i);
      EXPECT_EQ(entries, QStringList({u"Tel"_s, u"Fax"_s, u"Owner's"_s, longName}));
    }
    EXPECT_EQ(Text(u"cmdListFields"_s), u"Tel"_s);
    EXPECT_EQ(Text(u"cmbListFax"_s), u"Fax"_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Load_TwoRowsOfOneKey_SelectsNone) {
  RunOn(MakeWide({{u"FieldDial"_s, u"Tel"_s}, {u"FieldDial"_s, u"Fax"_s}}));
  InOptions([this] {
    EXPECT_EQ(List(u"cmdListFields"_s).ListIndex(), -1);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Load_Settings_ShowInTheirControls) {
  const std::pair<QString, QString> stored[]{
      {u"Modem"_s, u"3"_s},      {u"USA"_s, u"TRUE"_s},          {u"MAAM"_s, u"18"_s},
      {u"Outline"_s, u"0"_s},    {u"AreaCode"_s, u"030"_s},      {u"MailServer"_s, u"mail.example"_s},
      {u"TextEditor"_s, u"1"_s}, {u"EMail"_s, u"a@b.example"_s}, {u"Browser"_s, u"/usr/bin/env"_s}};
  for (const auto& [key, value] : stored) SaveSetting(u"Init"_s, key, value);
  SaveSetting(u"ShellApp"_s, u"1"_s, u"/bin/true"_s);
  Start();
  InOptions([this] {
    EXPECT_EQ(Ports(), u"--x-"_s);
    EXPECT_EQ(In<ui::CheckBox>(u"frmOptions"_s, u"chUSA"_s).Value(), 1);
    const std::pair<QString, QString> shown[]{{u"txtMaam"_s, u"18"_s},
                                              {u"txtPrefix"_s, u"0"_s},
                                              {u"txtArea"_s, u"030"_s},
                                              {u"txtMailServer"_s, u"mail.example"_s},
                                              {u"txtEmail"_s, u"a@b.example"_s},
                                              {u"txtBrowser"_s, u"/usr/bin/env"_s},
                                              {u"txtNameFile"_s, u"/bin/true"_s},
                                              {u"cmbTextEditor"_s, u"Word 8 / Office 97"_s}};
    for (const auto& [control, text] : shown) EXPECT_EQ(Text(control), text) << control.toStdString();
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Load_NothingStored_ShowsNoTaxAndTheOfferedBackground) {
  Start();
  InOptions([this] {
    EXPECT_EQ(Ports(), u"-x--"_s);
    EXPECT_EQ(Text(u"txtMaam"_s), QString());
    EXPECT_EQ(Text(u"cmbTextEditor"_s), QString());
    EXPECT_EQ(Text(u"txtBackGround"_s), u"(default)"_s);
    EXPECT_TRUE(HasPreview());
    EXPECT_EQ(In<ui::ListBox>(u"frmOptions"_s, u"lstIcon"_s).ListCount(), 12);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Apply_NoFile_LeavesTheListsEmptyAndStoresTheRest) {
  Start();
  InOptions([this] {
    EXPECT_EQ(List(u"cmdListFields"_s).ListCount(), 0);
    TypeOption(u"txtArea"_s, u"030"_s);
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(Init(u"AreaCode"_s), u"030"_s);
    EXPECT_EQ(ui::NoticeInView(), QString());
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Ok_ChangedOptions_StoresThemAllAndCloses) {
  const QString path = MakeWide({{u"Fieldfax"_s, u"Tel"_s}});
  RunOn(path);
  InOptions([this] {
    Pick(u"cmdListFields"_s, u"Tel"_s);
    Pick(u"cmbListFax"_s, u"Fax"_s);
    Pick(u"cmbTextEditor"_s, u"Word 7 / Office 95"_s);
    TypeOption(u"txtMaam"_s, u"21"_s);
    TypeOption(u"txtPrefix"_s, u"9"_s);
    TypeOption(u"txtEmail"_s, u"a@b.example"_s);
    ClickOption(u"opt4"_s);
    ClickOption(u"chUSA"_s);
    PressOption(u"EditData"_s);
    EXPECT_EQ(ui::FindScreen(u"frmOptions"_s), nullptr);
  });
  EXPECT_EQ(RowsOf(path, optionRows), QStringList({u"Fieldfax|Fax"_s, u"FieldDial|Tel"_s}));
  EXPECT_EQ(Init(u"MAAM"_s), u"21"_s);
  EXPECT_EQ(Init(u"Outline"_s), u"9"_s);
  EXPECT_EQ(Init(u"EMail"_s), u"a@b.example"_s);
  EXPECT_EQ(Init(u"TextEditor"_s), u"0"_s);
  EXPECT_EQ(Init(u"Modem"_s), u"4"_s);
  EXPECT_EQ(Init(u"USA"_s), u"TRUE"_s);
  EXPECT_EQ(Global().ModemPort, 4);
  EXPECT_EQ(Global().IsUsa, True);
}

TEST_F(RealFrameOptionsTest, Cancel_ChangedOptions_StoresNone) {
  const QString path = MakeWide({});
  RunOn(path);
  InOptions([this] {
    Pick(u"cmdListFields"_s, u"Tel"_s);
    TypeOption(u"txtMaam"_s, u"21"_s);
    ClickOption(u"chUSA"_s);
    PressOption(u"CancelData"_s);
  });
  EXPECT_EQ(RowsOf(path, optionRows), QStringList());
  EXPECT_EQ(Init(u"MAAM"_s), QString());
  EXPECT_EQ(Global().IsUsa, False);
}

TEST_F(RealFrameOptionsTest, Apply_ApostropheInTheField_BreaksTheUpdateAndStoresTheRest) {
  const QString path = MakeWide({{u"FieldDial"_s, u"Tel"_s}, {u"FieldFax"_s, u"Tel"_s}});
  RunOn(path);
  InOptions([this] {
    Pick(u"cmdListFields"_s, u"Owner's"_s);
    Pick(u"cmbListFax"_s, u"Fax"_s);
    TypeOption(u"txtMaam"_s, u"21"_s);
    PressOption(u"cmdApply"_s);
    EXPECT_TRUE(ui::NoticeInView().startsWith(u"The field \"Owner's\" was not stored. "_s))
        << ui::NoticeInView().toStdString();
    PressOption(u"CancelData"_s);
  });
  EXPECT_EQ(RowsOf(path, optionRows), QStringList({u"FieldDial|Tel"_s, u"FieldFax|Tel"_s}));
  EXPECT_EQ(Init(u"MAAM"_s), u"21"_s);
}

TEST_F(RealFrameOptionsTest, Ok_FieldNameTooLong_TellsItInTheStripWhenTheDialogIsGone) {
  const QString path = MakeWide({});
  RunOn(path);
  InOptions([this] {
    Pick(u"cmdListFields"_s, longName);
    PressOption(u"EditData"_s);
  });
  EXPECT_EQ(RowsOf(path, optionRows), QStringList());
  EXPECT_TRUE(QTest::qWaitFor([] { return !ui::NoticeInView().isEmpty(); }));
  EXPECT_EQ(ui::NoticeInView(),
            u"The field \"%1\" was not stored: its name has more than 40 characters."_s.arg(longName));
}

TEST_F(RealFrameOptionsTest, Apply_NoPortSet_ModemPortKeepsItsValue) {
  SaveSetting(u"Init"_s, u"Modem"_s, u"7"_s);
  Start();
  InOptions([this] {
    EXPECT_EQ(Ports(), u"----"_s);
    PressOption(u"cmdApply"_s);
    PressOption(u"CancelData"_s);
  });
  EXPECT_EQ(Global().ModemPort, 7);
  EXPECT_EQ(Init(u"Modem"_s), u"7"_s);
}

TEST_F(RealFrameOptionsTest, Apply_EmptiedBoxes_TellThatTheOldStays) {
  SaveSetting(u"Init"_s, u"EMail"_s, u"a@b.example"_s);
  Start();
  InOptions([this] {
    TypeOption(u"txtEmail"_s, {});
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(Init(u"EMail"_s), u"a@b.example"_s);
    EXPECT_EQ(ui::NoticeInView(), u"An empty box does not replace what is stored."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Apply_SettingsThatCannotBeWritten_Tells) {
  Start();
  QFile::remove(SettingsFile());
  ASSERT_TRUE(QDir().mkpath(SettingsFile()));
  InOptions([this] {
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(ui::NoticeInView(), u"The settings could not be written to "_s + SettingsFile());
    PressOption(u"CancelData"_s);
  });
  ASSERT_TRUE(QDir().rmdir(SettingsFile()));
  // What could not be written waits in memory; it must not come up in another test.
  EXPECT_TRUE(SaveSetting(u"Init"_s, u"MAAM"_s, {}));
}

TEST_F(RealFrameOptionsTest, TxtMaam_ThirdDigitTyped_IsBlanked) {
  Start();
  InOptions([this] {
    TypeOption(u"txtMaam"_s, u"10"_s);
    EXPECT_EQ(Text(u"txtMaam"_s), u"10"_s);
    QTest::keyClick(&In<QWidget>(u"frmOptions"_s, u"txtMaam"_s), Qt::Key_0);
    EXPECT_EQ(Text(u"txtMaam"_s), QString());
    EXPECT_EQ(ui::NoticeInView(), u"A tax percentage has two digits at most."_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(RealFrameOptionsTest, Options_OverAChangedCard_LeaveItChanged) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  OpenEditor();
  ChangeCity(u"EditTable"_s, u"Lyon"_s);
  InOptions([this] { PressOption(u"EditData"_s); });
  EXPECT_EQ(TextOf(u"EditTable"_s, u"NameText(0)"_s), u"Lyon"_s);
  EXPECT_EQ(Global().CardChanged, True);
  Press(u"EditTable"_s, u"CancelData"_s);
}

TEST_F(RealFrameOptionsTest, UpdateBackground_ViewerInFront_TakesThePictureOfTheStripAsItsIcon) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  // What the user sees is the icon of the window round the screen.
  const auto colour = [] {
    return Screen(u"ShowTable"_s).parentWidget()->windowIcon().pixmap(16, 16).toImage().pixelColor(8, 8);
  };
  InOptions([&] {
    ChooseFiles({MakePicture(u"red.bmp"_s, Qt::red)});
    PressOption(u"cmdBackGround"_s);
    EXPECT_NE(colour(), QColor(Qt::red));
    PressOption(u"cmdApply"_s);
    EXPECT_EQ(colour(), QColor(Qt::red));
    ClickOption(u"chkUseBackground"_s);
    PressOption(u"cmdApply"_s);
    EXPECT_NE(colour(), QColor(Qt::red));
    PressOption(u"CancelData"_s);
  });
  OpenEditor();
  QWidget& editor = Screen(u"EditTable"_s);
  const qint64 icon = editor.windowIcon().cacheKey();
  InOptions([this] { PressOption(u"EditData"_s); });
  EXPECT_EQ(editor.windowIcon().cacheKey(), icon);
}

}  // namespace
}  // namespace velmora
