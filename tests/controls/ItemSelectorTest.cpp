// SPDX-License-Identifier: MIT
#include "controls/ItemSelector.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"

#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class ItemSelectorTest : public ::testing::Test {
 protected:
  ItemSelectorTest() {
    list = new ui::ListBox(&window);
    list->SetMode(ui::ListChoice::Multiple);
    list->SetPlace({.Left = 0, .Top = 600, .Width = 3000, .Height = 1500});
    selector = new ItemSelector(&window);
    selector->SetName(u"itmsel"_s);
    selector->SetChildCtrl(list);
    list->AddItems({u"Alpha"_s, u"beta"_s, u"Bern"_s});
    window.resize(300, 300);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    selector->SetFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return selector->EnterText().hasFocus(); }));
  }
  void Type(const QString& text) {
    selector->EnterText().selectAll();
    if (text.isEmpty()) {
      QTest::keyClick(&selector->EnterText(), Qt::Key_Delete);
    } else {
      QTest::keyClicks(&selector->EnterText(), text);
    }
  }
  QList<int> ChosenLines() const {
    QList<int> lines;
    for (int i = 0; i < list->ListCount(); ++i) {
      if (list->Selected(i)) lines += i;
    }
    return lines;
  }

  QWidget window;
  ui::ListBox* list;
  ItemSelector* selector;
};

TEST_F(ItemSelectorTest, Change_CapitalB_SelectsBeta) {
  Type(u"B"_s);
  EXPECT_EQ(list->ListIndex(), 1);
  EXPECT_EQ(ChosenLines(), QList<int>({1}));
}

TEST_F(ItemSelectorTest, Change_NoMatch_LeavesTheSelection) {
  Type(u"al"_s);
  Type(u"zz"_s);
  EXPECT_EQ(list->ListIndex(), 0);
  EXPECT_EQ(ChosenLines(), QList<int>({0}));
}

TEST_F(ItemSelectorTest, Change_EmptyText_MatchesTheFirstLine) {
  Type(u"ber"_s);
  EXPECT_EQ(list->ListIndex(), 2);
  Type(QString());
  EXPECT_EQ(list->ListIndex(), 0);
  EXPECT_EQ(ChosenLines(), QList<int>({0}));
}

TEST_F(ItemSelectorTest, Change_EachLetter_TakesItsOwnEarlierChoiceBack) {
  Type(u"ber"_s);
  EXPECT_EQ(list->ListIndex(), 2);
  EXPECT_EQ(ChosenLines(), QList<int>({2}));
}

TEST_F(ItemSelectorTest, Change_LinesTheUserChose_StayChosen) {
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(0, 0)).center());
  Type(u"ber"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0, 2}));
  Type(u"al"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0}));
  Type(u"bet"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0, 1}));
}

TEST_F(ItemSelectorTest, Change_LineTheUserChoseAnew_IsNoLongerTheBoxs) {
  Type(u"ber"_s);
  const QPoint bern = list->visualRect(list->model()->index(2, 0)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, bern);
  EXPECT_TRUE(ChosenLines().isEmpty());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, bern);
  Type(u"al"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0, 2}));
}

TEST_F(ItemSelectorTest, Change_LineTakenOutBefore_KeepsTheChoiceOnItsLine) {
  Type(u"ber"_s);
  list->RemoveItem(0);
  Type(u"bet"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0}));
}

TEST_F(ItemSelectorTest, Change_LongList_BringsTheLineToTheTop) {
  for (int i = 0; i < 200; ++i) list->AddItem(u"Line %1"_s.arg(i));
  Type(u"line 57"_s);
  EXPECT_EQ(list->List(list->ListIndex()), u"Line 57"_s);
  EXPECT_EQ(list->TopIndex(), list->ListIndex());
}

TEST_F(ItemSelectorTest, Change_SingleChoice_MovesTheChoice) {
  list->SetMode(ui::ListChoice::Single);
  Type(u"be"_s);
  Type(u"al"_s);
  EXPECT_EQ(ChosenLines(), QList<int>({0}));
}

TEST_F(ItemSelectorTest, Change_WithoutAList_DoesNothing) {
  selector->SetChildCtrl(nullptr);
  Type(u"b"_s);
  EXPECT_EQ(list->ListIndex(), -1);
}

TEST_F(ItemSelectorTest, Change_ListGone_DoesNothing) {
  std::unique_ptr<QObject>(list).reset();
  Type(u"b"_s);
  EXPECT_EQ(selector->EnterText().Text(), u"b"_s);
}

TEST_F(ItemSelectorTest, Enter_RaisesOnPressEnter) {
  const QSignalSpy pressed(selector, &ItemSelector::OnPressEnter);
  QTest::keyClick(&selector->EnterText(), Qt::Key_Return);
  EXPECT_EQ(pressed.count(), 1);
}

TEST_F(ItemSelectorTest, Place_Start_Is2300By315) {
  EXPECT_EQ(selector->Width(), 2300);
  EXPECT_EQ(selector->EnterText().Width(), 2300);
  EXPECT_EQ(selector->Height(), 315);
}

TEST_F(ItemSelectorTest, SetWidth_SetsBothWidths) {
  selector->SetWidth(4605);
  EXPECT_EQ(selector->Width(), 4605);
  EXPECT_EQ(selector->EnterText().Width(), 4605);
}

TEST_F(ItemSelectorTest, SetHeight_ByTheHost_ReturnsTo315) {
  selector->SetHeight(900);
  EXPECT_EQ(selector->Height(), 315);
  selector->SetPlace({.Left = 100, .Top = 200, .Width = 3000, .Height = 10});
  EXPECT_EQ(selector->Placed(), (ui::Place{.Left = 100, .Top = 200, .Width = 3000, .Height = 315}));
  EXPECT_EQ(selector->height(), ui::Pixels(515) - ui::Pixels(200));
}

}  // namespace
