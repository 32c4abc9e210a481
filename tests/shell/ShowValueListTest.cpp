// SPDX-License-Identifier: MIT
#include "cardfile/EnterItem.h"
#include "cardfile/EnterShow.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "forms/Buttons.h"
#include "forms/Default.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"
#include "tests/support/Dialogs.h"

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// The value lists over the real card screens of the real frame.
class ShowValueListTest : public MainFixture {
 protected:
  template <typename List>
  static void AddAndTake(CardForm& form, const QString& value) {
    test::InDialog<List>([&form] { QTest::mouseDClick(&form.NameText[0], Qt::LeftButton); },
                         [&value](const List& list) {
                           test::Type(test::Find<ui::TextBox>(list, u"EnterText"_s), value);
                           test::Press(list, u"cmdAdd"_s);
                           test::ClickLine(test::Find<ui::ListBox>(list, u"ListItem"_s), 0);
                           test::Press(list, u"Command3"_s);
                         });
  }
  static QString Stored(const QString& source) {
    const db::Recordset rows = Global().File().OpenRecordset(source);
    return rows.AtEnd() ? u"no row"_s : rows[u"City"].TextOr(u"Null"_s);
  }
};

}  // namespace

TEST_F(ShowValueListTest, Viewer_DoubleClickOnAText_FillsItAndCountsAsEdited) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  auto& viewer = ui::Default<ShowTable>();
  AddAndTake<EnterShow>(viewer, u"Rome"_s);
  EXPECT_EQ(viewer.NameText[0].Text(), u"Rome"_s);
  EXPECT_EQ(Global().CardChanged, True);
  test::Press(viewer, u"EditData"_s);
  EXPECT_EQ(Stored(u"MainData"_s), u"Rome"_s);
  EXPECT_EQ(Stored(u"CityT"_s), u"Rome"_s);
}

TEST_F(ShowValueListTest, Editor_DoubleClickOnAText_FillsItAndKeepsTheMarks) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  frame.UnloadOtherForms();
  frame.NewCard();
  auto& editor = ui::Default<EditTable>();
  test::Type(*editor.NameRecord, u"Ann"_s);
  AddAndTake<EnterItem>(editor, u"Oslo"_s);
  EXPECT_EQ(editor.NameText[0].Text(), u"Oslo"_s);
  EXPECT_EQ(Global().CardChanged, True);
  test::Press(editor, u"EditData"_s);
  EXPECT_EQ(Stored(u"SELECT * FROM MainData WHERE [Index@] = 2"_s), u"Oslo"_s);
}

TEST_F(ShowValueListTest, Viewer_FieldThatIsNoText_HasAnEmptyListThatFillsNothing) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  Global().CurFieldIndex = 4;
  test::InDialog<EnterShow>([&frame] { frame.ShowValueList(CardScreen::Viewer); },
                            [](const EnterShow& list) {
                              test::Type(test::Find<ui::TextBox>(list, u"EnterText"_s), u"Rome"_s);
                              test::Press(list, u"cmdAdd"_s);
                              EXPECT_EQ(test::Find<ui::ListBox>(list, u"ListItem"_s).ListCount(), 0);
                            });
  EXPECT_EQ(Global().CardChanged, False);
}

}  // namespace velmora
