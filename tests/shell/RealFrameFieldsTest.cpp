// SPDX-License-Identifier: MIT
// The field editor in the real frame: from a field that is added to its values on a card, in a query, and
// gone.
#include "forms/Notice.h"
#include "frame/Session.h"
#include "shell/ScreenOpeners.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QTableView>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString fields = u"fEditLab"_s;
const QString viewer = u"ShowTable"_s;
const QString editor = u"EditTable"_s;
const QString results = u"ResultQuery"_s;

class RealFrameFieldsTest : public RealFrame {
 protected:
  /// A text field on page 1, two on page 2, which has a title, and these cards.
  QString MakeCards(const QList<int>& cards = {1, 2}) {
    return MakeFile(u"fields.ddb"_s,
                    test::ACardFile()
                        .With(test::TextField(u"City"_s))
                        .With(test::TextField(u"Trade"_s), 2)
                        .With(test::NumberField(u"Turnover"_s), 2)
                        .Titled(2, u"Work"_s),
                    [&cards](const test::CardFile& file) {
                      for (const int card : cards) file.AddCard(card, u"Card %1"_s.arg(card));
                    });
  }
  void OpenFields() const {
    ClickTool(u"ltTool"_s, 5);
    ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, fields}));
  }
  void Add(const QString& name, FieldKind kind) const {
    auto& kinds = In<QComboBox>(fields, u"lstType"_s);
    kinds.setFocus();
    QTest::keyClick(&kinds, Qt::Key_Home);
    for (int step = 0; step < static_cast<int>(kind); ++step) QTest::keyClick(&kinds, Qt::Key_Down);
    Type(fields, u"NewField"_s, name);
    Press(fields, u"cmdAdd"_s);
    EXPECT_EQ(TextOf(fields, u"NewField"_s), QString());
    EXPECT_EQ(ui::NoticeInView(), QString());
  }
  [[nodiscard]] static QStringList FieldsOfPage() {
    const QAbstractItemModel* model = In<QAbstractItemView>(fields, u"lstDelName"_s).model();
    QStringList names;
    for (int line = 0; line < model->rowCount(); ++line) names += model->index(line, 0).data().toString();
    return names;
  }
  /// Chooses a field of the page in view and deletes it.
  static void Delete(const QString& name) {
    auto& list = In<QAbstractItemView>(fields, u"lstDelName"_s);
    const auto line = static_cast<int>(FieldsOfPage().indexOf(name));
    ASSERT_GE(line, 0);
    list.scrollTo(list.model()->index(line, 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(line, 0)).center());
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    Press(fields, u"cmdDel"_s);
    EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to delete this field?"_s);
  }
  static void GoToPage(int page) { Press(fields, u"cmdPage(%1)"_s.arg(page - 1)); }
  void AddOneOfEachKind() const {
    OpenFields();
    Add(u"Colour"_s, FieldKind::Text);
    Add(u"Staff"_s, FieldKind::Number);
    Add(u"Active"_s, FieldKind::YesNo);
    Add(u"Paid"_s, FieldKind::Date);
  }
  /// Enters the card 3 with a value in each of those fields.
  void FillThem() const {
    OpenEditor();
    Type(editor, u"NameRecord"_s, u"Zoe"_s);
    Type(editor, u"NameText(1)"_s, u"Blue"_s);
    Type(editor, u"NameNumber(2)"_s, u"14"_s);
    Press(editor, u"NameCheck(3)"_s);
    auto& date = *In<QWidget>(editor, u"NameDate(4)"_s).findChild<QLineEdit*>(u"DateVal"_s);
    date.setFocus();
    QTest::keyClicks(&date, u"5/17/2031"_s);
    Press(editor, u"EditData"_s);
  }
};

TEST_F(RealFrameFieldsTest, FieldEditor_FromTheToolbar_TakesThePlaceOfTheCard) {
  RunOn(MakeCards());
  ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, viewer}));
  OpenFields();
  EXPECT_EQ(ui::ActiveChild(), ui::FindScreen(fields));
  EXPECT_EQ(FieldsOfPage(), QStringList{u"City"_s});
}

TEST_F(RealFrameFieldsTest, FieldEditor_NoFileOpen_OpensEmpty) {
  Start();
  OpenFields();
  EXPECT_EQ(FieldsOfPage(), QStringList());
  EXPECT_EQ(TextOf(fields, u"TextIn(0)"_s), QString());
}

TEST_F(RealFrameFieldsTest, Field_OfEachKind_IsOnTheCardAndTakesItsValue) {
  const QString path = MakeCards();
  RunOn(path);
  AddOneOfEachKind();
  FillThem();
  EXPECT_EQ(RowsOf(path, u"Select Colour, Staff, Active from MainData where [Index@] = 3"_s),
            QStringList{u"Blue|14|-1"_s});
  EXPECT_EQ(RowsOf(path, u"Select [Index@] from MainData where Paid = #5/17/2031#"_s), QStringList{u"3"_s});
  EXPECT_EQ(RowsOf(path, u"Select Colour, Staff, Active, Paid from MainData where [Index@] = 1"_s),
            QStringList{u"Null|Null|0|Null"_s});
}

TEST_F(RealFrameFieldsTest, Field_OfEachKind_IsInTheQueriesAndTheirResults) {
  RunOn(MakeCards());
  AddOneOfEachKind();
  FillThem();
  ClickTool(u"tool"_s, 8);
  for (const auto& [button, name] : {std::pair{1, u"Colour"_s}, std::pair{2, u"Staff"_s},
                                     std::pair{3, u"Active"_s}, std::pair{4, u"Paid"_s}})
    EXPECT_EQ(TextOf(u"QueryN"_s, u"butField(%1)"_s.arg(button)), name);
  InDialog(
      u"SelectFields"_s, [] { Press(u"QueryN"_s, u"EditData"_s); },
      [this] {
        Press(u"SelectFields"_s, u"AddAll"_s);
        Type(u"SelectFields"_s, u"NameQuery"_s, u"Everything"_s);
        Press(u"SelectFields"_s, u"Ok"_s);
      });
  ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, results}));
  const QAbstractItemModel* rows = In<QTableView>(results, u"MyFlex"_s).model();
  QStringList headings;
  QStringList last;
  for (int column = 0; column < rows->columnCount(); ++column) {
    headings += rows->headerData(column, Qt::Horizontal).toString().trimmed();
    last += rows->index(rows->rowCount() - 1, column).data().toString();
  }
  for (const auto& [name, value] : {std::pair{u"Colour"_s, u"Blue"_s}, std::pair{u"Staff"_s, u"14"_s},
                                    std::pair{u"Active"_s, u"Yes"_s}, std::pair{u"Paid"_s, u"5/17/2031"_s}}) {
    ASSERT_TRUE(headings.contains(name)) << headings.join(u' ').toStdString();
    EXPECT_EQ(last.value(headings.indexOf(name)), value);
  }
}

TEST_F(RealFrameFieldsTest, Field_OfEachKind_DeletedIsGoneFromFileAndCard) {
  const QString path = MakeCards();
  RunOn(path);
  AddOneOfEachKind();
  FillThem();
  OpenFields();
  for (const QString& name : {u"Colour"_s, u"Staff"_s, u"Active"_s, u"Paid"_s}) Delete(name);
  EXPECT_EQ(FieldsOfPage(), QStringList{u"City"_s});
  Press(fields, u"CreateData"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, viewer}));
  EXPECT_EQ(RowsOf(path, u"Select Colour from MainData"_s), QStringList{u"fails"_s});
  EXPECT_EQ(RowsOf(path, u"ColourT"_s), QStringList{u"fails"_s});
  EXPECT_EQ(RowsOf(path, u"Select Name from MainData"_s), QStringList({u"Card 1"_s, u"Card 2"_s, u"Zoe"_s}));
  EXPECT_EQ(RowsOf(path, u"Location"_s).size(), 6);
}

TEST_F(RealFrameFieldsTest, Delete_OfAPagesLastField_FreesItsNumber) {
  const QString path = MakeCards();
  RunOn(path);
  OpenFields();
  GoToPage(2);
  Delete(u"Trade"_s);
  EXPECT_EQ(TextOf(fields, u"lblCurPage"_s), u"2"_s);
  EXPECT_EQ(FieldsOfPage(), QStringList{u"Turnover"_s});
  Delete(u"Turnover"_s);
  EXPECT_EQ(TextOf(fields, u"lblCurPage"_s), u"2"_s);
  EXPECT_EQ(TextOf(fields, u"txtNamePage(1)"_s), QString());
  EXPECT_EQ(RowsOf(path, u"Select Tab from Location Where Tab > 1"_s), QStringList());
  Add(u"Colour"_s, FieldKind::Text);
  EXPECT_EQ(RowsOf(path, u"Select Name, Type from Location Where Tab = 2"_s), QStringList{u"Colour|2"_s});
}

TEST_F(RealFrameFieldsTest, Delete_OverAnOpenResult_ClosesItAndItsQueryIsGone) {
  const QString path = MakeCards();
  RunOn(path);
  Global().File().CreateQueryDef(u"All&", u"SELECT [Index@],[Trade] FROM  MainData ");
  m_main->SetLastQuery(u"All&"_s);
  OpenFields();
  // This button leaves the other screens open.
  ClickTool(u"ltTool"_s, 17);
  ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, fields, results}));
  dynamic_cast<ui::Form*>(ui::FindScreen(fields))->BringToFront();
  GoToPage(2);
  Delete(u"Trade"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, fields}));
  EXPECT_EQ(Global().File().QueryDefs(), QStringList());
  EXPECT_EQ(FieldsOfPage(), QStringList{u"Turnover"_s});
}

TEST_F(RealFrameFieldsTest, Delete_OverAChangedCard_StoresItFirst) {
  const QString path = MakeCards();
  RunOn(path);
  OpenFields();
  m_main->NewCard();
  Type(editor, u"NameRecord"_s, u"Zoe"_s);
  Type(editor, u"NameText(0)"_s, u"Lyon"_s);
  dynamic_cast<ui::Form*>(ui::FindScreen(fields))->BringToFront();
  GoToPage(2);
  auto& list = In<QAbstractItemView>(fields, u"lstDelName"_s);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(1, 0)).center());
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok, ui::MsgAnswer::Yes});
    Press(fields, u"cmdDel"_s);
    EXPECT_EQ(answers.Asked().value(1).Text, u"Do you wish to save changes?"_s);
  }
  EXPECT_EQ(RowsOf(path, u"Select Name, City from MainData where [Index@] = 3"_s),
            QStringList{u"Zoe|Lyon"_s});
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, fields}));
}

TEST_F(RealFrameFieldsTest, Delete_FileWithoutCards_ClosesTheScreenAndTellsIt) {
  RunOn(MakeCards({}));
  OpenFields();
  GoToPage(2);
  Delete(u"Trade"_s);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(ui::NoticeInView(), u"The field is deleted."_s);
}

TEST_F(RealFrameFieldsTest, OkAndCancel_FileWithCards_ShowTheCard) {
  RunOn(MakeCards(), 2);
  for (const QString& button : {u"CreateData"_s, u"CancelData"_s}) {
    OpenFields();
    Press(fields, button);
    EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, viewer}));
    EXPECT_EQ(TextOf(viewer, u"NameRecord"_s), u"Card 2"_s);
  }
}

TEST_F(RealFrameFieldsTest, OkAndCancel_FileWithoutCards_ShowANewCard) {
  RunOn(MakeCards({}));
  for (const QString& button : {u"CreateData"_s, u"CancelData"_s}) {
    OpenFields();
    Press(fields, button);
    EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, editor}));
  }
}

TEST_F(RealFrameFieldsTest, Escape_LeavesTheFrameEmpty) {
  RunOn(MakeCards());
  OpenFields();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(RealFrameFieldsTest, Load_ViewerWithACardThatCannotBeStored_OpensNothing) {
  RunOn(MakeCards());
  Type(viewer, u"NameRecord"_s, QString());
  {
    const MessageAnswers answers({ui::MsgAnswer::Yes, ui::MsgAnswer::Ok});
    OpenFieldEditor();
  }
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, viewer}));
  const MessageAnswers answers({ui::MsgAnswer::No});
  ui::FindScreen(viewer)->Unload();
}

}  // namespace
}  // namespace velmora
