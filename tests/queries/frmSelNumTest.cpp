// SPDX-License-Identifier: MIT
#include "tests/queries/Pickers.h"

namespace velmora::test {

class frmSelNumTest : public PickersTest {};

TEST_F(frmSelNumTest, EveryControl_HasItsCaptionAndTip) {
  InNumber([](const frmSelNum& picker) {
    EXPECT_EQ(picker.windowTitle(), u"Choice of Numerical Data"_s);
    const QString limits =
        u"Determine values less than or greater than the required number. Use of both tables will allow you "
        "to determine double limits such as <5 and >10."_s;
    for (const QString& name : {u"Frame1(0)"_s, u"Frame1(1)"_s}) {
      EXPECT_EQ(Find<ui::GroupFrame>(picker, name).Caption(), u"Determine Numerical Limits"_s);
      EXPECT_EQ(Find<ui::GroupFrame>(picker, name).toolTip(), limits);
    }
    for (const QString& name : {u"cmbEx"_s, u"cmbEx1"_s}) {
      const auto& sign = Find<ui::ComboBox>(picker, name);
      EXPECT_EQ(sign.List(0) + sign.List(1) + sign.List(2), u"><="_s);
      EXPECT_EQ(sign.ListCount(), 3);
      EXPECT_EQ(sign.ListIndex(), -1);
      EXPECT_EQ(sign.toolTip(), u"Select <,>, ="_s);
    }
    EXPECT_EQ(Number(picker, u"txtValue1"_s).toolTip(), u"Enter Number"_s);
    EXPECT_EQ(Button(picker, u"cmdOK"_s).Caption(), u"OK"_s);
    EXPECT_EQ(Button(picker, u"cmdOK"_s).toolTip(), u"Choose the Required Values and Click OK"_s);
    EXPECT_EQ(Button(picker, u"cmdCancel"_s).Caption(), u"Cancel"_s);
    EXPECT_EQ(Button(picker, u"cmdCancel"_s).toolTip(), u"Click to Exit "_s);
    EXPECT_EQ(TabStops(), QStringList({u"cmbEx"_s, u"txtValue"_s, u"cmbEx1"_s, u"txtValue1"_s, u"cmdOK"_s,
                                       u"cmdCancel"_s}));
  });
}

TEST_F(frmSelNumTest, FieldNotSet_SaysNameOfField) {
  ui::ListBox list(frame.get());
  const frmSelNum picker(list);
  EXPECT_EQ(picker.lblName[0].Caption(), u"Name of Field"_s);
  EXPECT_EQ(picker.lblName[1].Caption(), u"Name of Field"_s);
}

TEST_F(frmSelNumTest, BothGroups_GiveTwoConditions) {
  screen->lstElement[Turnover].AddItem(u"= 1"_s);
  InNumber([](const frmSelNum& picker) {
    Choose(picker, u"cmbEx"_s, 0);
    KeyIn(Number(picker, u"txtValue"_s), u"5"_s);
    Choose(picker, u"cmbEx1"_s, 1);
    KeyIn(Number(picker, u"txtValue1"_s), u"10"_s);
    Press(picker, u"cmdOK"_s);
    EXPECT_TRUE(picker.IsClosing());
  });
  EXPECT_EQ(Conditions(Turnover), QStringList({u"> 5"_s, u"< 10"_s}));
  EXPECT_EQ(screen->lstElement[Turnover].ListIndex(), 0);
}

TEST_F(frmSelNumTest, HalfAGroup_AddsNothing) {
  screen->lstElement[Turnover].AddItem(u"= 1"_s);
  InNumber([](const frmSelNum& picker) {
    Choose(picker, u"cmbEx"_s, 2);
    KeyIn(Number(picker, u"txtValue1"_s), u"10"_s);
    Press(picker, u"cmdOK"_s);
  });
  EXPECT_TRUE(Conditions(Turnover).isEmpty());
}

TEST_F(frmSelNumTest, Cancel_LeavesTheConditions) {
  screen->lstElement[Turnover].AddItem(u"= 1"_s);
  InNumber([](const frmSelNum& picker) {
    Choose(picker, u"cmbEx"_s, 0);
    KeyIn(Number(picker, u"txtValue"_s), u"5"_s);
    Press(picker, u"cmdCancel"_s);
  });
  EXPECT_EQ(Conditions(Turnover), QStringList(u"= 1"_s));
}

TEST_F(frmSelNumTest, AnyKeyButADigit_UndoesItself) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"1a2.3-4,"_s);
    EXPECT_EQ(box.Text(), u"1234"_s);
    QTest::keyClick(&box, Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(box.Text(), u"1234"_s);
  });
}

TEST_F(frmSelNumTest, Deletion_ComesBack) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"12"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), u"12"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_X);
    EXPECT_EQ(box.Text(), u"12"_s);
  });
}

TEST_F(frmSelNumTest, KeyWithoutAnEdit_UndoesOneDigitOnce) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"123"_s);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(box.Text(), u"12"_s);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(box.Text(), u"12"_s);
  });
}

TEST_F(frmSelNumTest, HeldKey_IsOneEdit) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"1"_s);
    const auto press = [&box](bool again) {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s, again);
      QApplication::sendEvent(&box, &event);
    };
    press(false);
    press(true);
    press(true);
    EXPECT_EQ(box.Text(), u"1aaa"_s);
    QTest::keyRelease(&box, Qt::Key_A);
    EXPECT_EQ(box.Text(), u"1"_s);
  });
}

TEST_F(frmSelNumTest, TabIntoABox_UndoesNothing) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"5"_s);
    auto& sign = Find<ui::ComboBox>(picker, u"cmbEx"_s);
    sign.setFocus();
    QTest::keyPress(&sign, Qt::Key_Tab);
    ASSERT_TRUE(box.hasFocus());
    QTest::keyRelease(&box, Qt::Key_Tab);
    EXPECT_EQ(box.Text(), u"5"_s);
  });
}

}  // namespace velmora::test
