// SPDX-License-Identifier: MIT
#include "cardfile/FieldCatalogue.h"
#include "forms/Screen.h"
#include "tests/cardfile/CreatTableScreen.h"
#include "tests/support/Screens.h"

#include <QFile>

namespace velmora::test {
namespace {

class CreatTableConfirmTest : public CreatTableTest {
 protected:
  /// Rows of the file's catalogue: page, code and name.
  static QStringList Catalogue() {
    QStringList rows;
    for (const CatalogueRow& row : CaptionRows())
      rows.append(u"%1 %2 %3"_s.arg(row.Tab).arg(row.Type).arg(row.Name.value_or(u"Null"_s)));
    for (const CatalogueRow& row : FieldRows())
      rows.append(u"%1 %2 %3"_s.arg(row.Tab).arg(row.Type).arg(row.Name.value_or(u"Null"_s)));
    return rows;
  }
};

TEST_F(CreatTableConfirmTest, Confirm_MainFieldBlank_AsksForItsName) {
  Type(Box(u"MainName"_s), u"  "_s);
  Type(Field(0), u"City"_s);
  Press(u"CreateData"_s);
  const ui::Message message = TakeMessage();
  EXPECT_EQ(message.Text, u"Please enter a name for your main field."_s);
  EXPECT_EQ(message.Title, u"Info"_s);
  EXPECT_EQ(message.Icon, ui::MsgIcon::Information);
  EXPECT_TRUE(Box(u"MainName"_s).hasFocus());
  EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(CreatTableConfirmTest, Confirm_FirstFieldBlankWithAnotherPageInView_BringsItIntoView) {
  Type(Box(u"MainName"_s), u"Company"_s);
  GoToPage(2);
  AskForFields(1);
  Type(Field(1), u"City"_s);
  Press(u"CreateData"_s);
  const ui::Message message = TakeMessage();
  EXPECT_EQ(message.Text, u"Please enter a name for your first field."_s);
  EXPECT_EQ(message.Title, u"Info"_s);
  EXPECT_TRUE(Field(0).hasFocus());
  EXPECT_EQ(RowsInView(), QList<int>({0}));
}

TEST_F(CreatTableConfirmTest, Confirm_OnlyTheFirstField_MakesAFileOfOneField) {
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"City"_s);
  Press(u"CreateData"_s);
  EXPECT_EQ(Catalogue(), QStringList({u"0 0 Company"_s, u"1 1 Null"_s, u"1 2 City"_s}));
  EXPECT_TRUE(Global().File().HasTable(u"CityT"));
}

TEST_F(CreatTableConfirmTest, Confirm_FieldsOnPages1And3_GivesNoRowForPage2) {
  Type(Box(u"MainName"_s), u" Company "_s);
  Type(Field(0), u"City"_s);
  Type(Title(1), u"Address"_s);
  GoToPage(2);
  Type(Title(2), u"Nothing here"_s);
  AskForFields(2);
  GoToPage(3);
  AskForFields(3);
  Type(Field(3), u"Turnover"_s);
  Choose(3, FieldKind::Number);
  Type(Field(4), u"Active"_s);
  Choose(4, FieldKind::YesNo);
  Type(Field(5), u"Due"_s);
  Choose(5, FieldKind::Date);
  Press(u"CreateData"_s);
  EXPECT_EQ(Catalogue(), QStringList({u"0 0 Company"_s, u"1 1 Address"_s, u"3 1 Null"_s, u"1 2 City"_s,
                                      u"3 3 Turnover"_s, u"3 4 Active"_s, u"3 5 Due"_s}));
}

TEST_F(CreatTableConfirmTest, Confirm_RowsLeftEmptyInTheMiddle_CloseUp) {
  Type(Box(u"MainName"_s), u"Company"_s);
  AskForFields(5);
  Type(Field(0), u"A"_s);
  Type(Field(2), u"C"_s);
  Type(Field(3), u"   "_s);
  Type(Field(4), u"E"_s);
  Press(u"CreateData"_s);
  EXPECT_EQ(Catalogue().mid(2), QStringList({u"1 2 A"_s, u"1 2 C"_s, u"1 2 E"_s}));
}

TEST_F(CreatTableConfirmTest, Confirm_Done_OpensTheFileAndAsksForItsFirstCard) {
  frame.ClientLab().SetCaption(u"Old"_s);
  frame.NumberLab().SetCaption(u"7"_s);
  auto* other = new OtherScreen;
  other->Show();
  wizard->BringToFront();
  std::int32_t cardAtNewCard = -1;
  frame.OnCall = [&](const QString& call) {
    if (call == u"NewCard") cardAtNewCard = std::exchange(Global().CurCard, 9);
  };
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"City"_s);
  Press(u"CreateData"_s);
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_EQ(frame.Calls, QStringList({u"UnloadOtherForms"_s, u"NewCard"_s, u"RememberFile"_s}));
  EXPECT_EQ(cardAtNewCard, 0);
  EXPECT_EQ(Global().CurCard, 1);
  EXPECT_EQ(Global().NoFile, False);
  EXPECT_EQ(Global().FilePath, m_path);
  EXPECT_EQ(Global().FileTitle, u"new.ddb"_s);
  EXPECT_EQ(Global().File().Name(), m_path);
  EXPECT_EQ(frame.windowTitle(), m_path);
  EXPECT_TRUE(frame.ClientLab().Caption().isEmpty());
  EXPECT_TRUE(frame.NumberLab().Caption().isEmpty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return wizard.isNull(); }));
}

TEST_F(CreatTableConfirmTest, Confirm_AScreenThatRefuses_IsAskedOnceAndTheOthersClose) {
  auto* stubborn = new AskingScreen(u"StubbornScreen"_s);
  stubborn->Show();
  auto* other = new OtherScreen;
  other->Show();
  wizard->BringToFront();
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"City"_s);
  Press(u"CreateData"_s);
  EXPECT_EQ(stubborn->Asked, 1);
  EXPECT_EQ(ui::Forms(), QList<ui::Screen*>({ui::Forms().first(), stubborn}));
  EXPECT_EQ(Global().FilePath, m_path);
  stubborn->Refuses = false;
  stubborn->Unload();
}

TEST_F(CreatTableConfirmTest, Confirm_FieldNamedRemarks_EndsSilentlyWithThePartialFile) {
  Type(Box(u"MainName"_s), u"Company"_s);
  AskForFields(3);
  Type(Field(0), u"City"_s);
  Type(Field(2), u"Remarks"_s);
  Press(u"CreateData"_s);
  EXPECT_FALSE(wizard->isVisible());
  EXPECT_EQ(ui::Forms().size(), 2);
  EXPECT_TRUE(frame.Calls.isEmpty());
  EXPECT_TRUE(QFile::exists(m_path));
  EXPECT_EQ(Global().File().Name(), m_path);
  EXPECT_EQ(Global().NoFile, True);
  EXPECT_FALSE(Global().File().HasTable(u"MainData"));
}

TEST_F(CreatTableConfirmTest, Confirm_NumberColumnWithABlank_PassesTheCheckAndFailsInTheFile) {
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"Index@ "_s);
  Press(u"CreateData"_s);
  EXPECT_FALSE(wizard->isVisible());
  EXPECT_EQ(Global().NoFile, True);
}

TEST_F(CreatTableConfirmTest, Confirm_FailedAndShownAgain_RowsStandClosedUp) {
  Type(Box(u"MainName"_s), u"Company"_s);
  AskForFields(3);
  Type(Field(0), u"City"_s);
  Type(Field(2), u"Remarks"_s);
  Press(u"CreateData"_s);
  ASSERT_FALSE(wizard->isVisible());
  wizard->Show();
  EXPECT_EQ(RowsInView(), QList<int>({0, 2}));
  EXPECT_EQ(Field(2).Top(), 1820);
  EXPECT_EQ(Kind(2).Top(), 1820);
}

}  // namespace
}  // namespace velmora::test
