// SPDX-License-Identifier: MIT
#include "controls/ItemSelector.h"
#include "forms/ComboBox.h"
#include "queries/DigitBox.h"
#include "queries/EnterQuery.h"
#include "queries/KnownValues.h"
#include "queries/SelectQ.h"
#include "queries/frmBoolSel.h"
#include "queries/frmSelNum.h"
#include "tests/queries/QueryScreens.h"

namespace velmora::test {
namespace {

class PickersTest : public QueryScreensTest {
 protected:
  PickersTest() {
    Make(ACardFile()
             .With(TextField(u"City"_s))
             .With(NumberField(u"Turnover"_s))
             .With(YesNoField(u"Active"_s)));
    screen = &Open();
  }
  enum Element { City, Turnover, Active };

  void Keep(const QStringList& values) const {
    for (const QString& value : values) file->AddRow(u"CityT"_s, {{u"City"_s, value}});
  }
  void InText(const std::function<void(SelectQ&)>& work) const {
    InDialog<SelectQ>([this] { Click(screen->butField[City]); }, work);
  }
  void InNumber(const std::function<void(frmSelNum&)>& work) const {
    InDialog<frmSelNum>([this] { Click(screen->butField[Turnover]); }, work);
  }
  void InYesNo(const std::function<void(frmBoolSel&)>& work) const {
    InDialog<frmBoolSel>([this] { Click(screen->butField[Active]); }, work);
  }
  /// The conditions that stand on the query screen.
  [[nodiscard]] QStringList Conditions(Element field) const { return Lines(screen->lstElement[field]); }

  static ui::TextBox& Box(const SelectQ& picker, int index) {
    return Find<ui::TextBox>(picker, u"txtSelect(%1)"_s.arg(index));
  }
  static ui::ListBox& Values(const SelectQ& picker) { return Find<ui::ListBox>(picker, u"List1"_s); }
  static ui::ListBox& Values(const EnterQuery& list) { return Find<ui::ListBox>(list, u"ListItem"_s); }
  static DigitBox& Number(const frmSelNum& picker, const QString& name) {
    return Find<DigitBox>(picker, name);
  }
  static void Choose(const frmSelNum& picker, const QString& name, int line) {
    auto& sign = Find<ui::ComboBox>(picker, name);
    sign.setFocus();
    for (int step = -1; step < line; ++step) QTest::keyClick(&sign, Qt::Key_Down);
    ASSERT_EQ(sign.ListIndex(), line);
  }
  static void KeyIn(DigitBox& box, const QString& keys) {
    box.setFocus();
    QTest::keyClicks(&box, keys);
  }

  QPointer<QueryN> screen;
};

}  // namespace

TEST_F(PickersTest, SelectQ_EveryControl_HasItsCaptionAndTip) {
  InText([](const SelectQ& picker) {
    EXPECT_EQ(picker.windowTitle(), u"Contents of Card Field"_s);
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(Box(picker, i).toolTip(),
                u"Enter Query Field and Click OK / Double Click to View Multi-Variable"_s);
      EXPECT_TRUE(Box(picker, i).isVisible());
    }
    EXPECT_EQ(Values(picker).toolTip(), u"Choose Query Fields and Click OK"_s);
    EXPECT_EQ(Find<ui::GroupFrame>(picker, u"Frame2"_s).Caption(), u"Choice of Data for Query"_s);
    EXPECT_EQ(Find<ui::Label>(picker, u"lblName(0)"_s).Caption(), u"Fields:"_s);
    EXPECT_EQ(Find<ui::Label>(picker, u"lblName(0)"_s).toolTip(),
              u"Choose Fields for Query not Included In List"_s);
    EXPECT_EQ(Find<ui::Label>(picker, u"lblName(1)"_s).Caption(), u"Query Fields"_s);
    EXPECT_EQ(Button(picker, u"Command1"_s).Caption(), u"OK"_s);
    EXPECT_EQ(Button(picker, u"Command1"_s).toolTip(),
              u"Choose the Fields Required for the Query and Click OK"_s);
    EXPECT_EQ(Button(picker, u"Command2"_s).toolTip(), u"Click to Exit"_s);
    EXPECT_EQ(Find<ItemSelector>(picker, u"itmsel"_s).Width(), 4605);
    EXPECT_TRUE(Box(picker, 0).hasFocus());
    EXPECT_EQ(TabStops(),
              QStringList({u"txtSelect(0)"_s, u"txtSelect(1)"_s, u"txtSelect(2)"_s, u"txtSelect(3)"_s,
                           u"txtSelect(4)"_s, u"EnterText"_s, u"List1"_s, u"Command1"_s, u"Command2"_s}));
  });
}

TEST_F(PickersTest, SelectQ_FiveBoxesAndThreeLines_GiveEightConditionsBoxesFirst) {
  Keep({u"Rome"_s, u"Oslo"_s, u"Bern"_s, u"Paris"_s});
  InText([](const SelectQ& picker) {
    for (int i = 0; i < 5; ++i) Type(Box(picker, i), u"b%1"_s.arg(i));
    for (const int line : {3, 0, 2}) ClickLine(Values(picker), line);
    Press(picker, u"Command1"_s);
    EXPECT_TRUE(picker.IsClosing());
  });
  EXPECT_EQ(Conditions(City),
            QStringList({u"b0"_s, u"b1"_s, u"b2"_s, u"b3"_s, u"b4"_s, u"Rome"_s, u"Bern"_s, u"Paris"_s}));
  EXPECT_EQ(screen->lstElement[City].ListIndex(), 0);
}

TEST_F(PickersTest, SelectQ_BlankBox_IsSkippedAndBlanksAroundStay) {
  InText([](const SelectQ& picker) {
    Type(Box(picker, 0), u"   "_s);
    Type(Box(picker, 1), u" Rome "_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList(u" Rome "_s));
}

TEST_F(PickersTest, SelectQ_EmptyValueList_LeavesTheBoxesToType) {
  InText([](const SelectQ& picker) {
    EXPECT_EQ(Values(picker).ListCount(), 0);
    Type(Box(picker, 4), u"Rome"_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList(u"Rome"_s));
}

TEST_F(PickersTest, SelectQ_MissingValueList_LeavesTheBoxesToType) {
  file->Database().DeleteTableDef(u"CityT");
  InText([](const SelectQ& picker) {
    EXPECT_EQ(Values(picker).ListCount(), 0);
    Type(Box(picker, 0), u"Rome"_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList(u"Rome"_s));
}

TEST_F(PickersTest, SelectQ_TwoEqualLines_AreBothWritten) {
  InText([](const SelectQ& picker) {
    Type(Box(picker, 0), u"Rome"_s);
    Type(Box(picker, 1), u"Rome"_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList({u"Rome"_s, u"Rome"_s}));
}

TEST_F(PickersTest, SelectQ_Apostrophe_IsRefusedAndNothingIsWritten) {
  screen->lstElement[City].AddItem(u"Bern"_s);
  MessageAnswers answers({ui::MsgAnswer::Ok});
  InText([](const SelectQ& picker) {
    Type(Box(picker, 0), u"Rome"_s);
    Type(Box(picker, 2), u"O'Hara"_s);
    Press(picker, u"Command1"_s);
    EXPECT_FALSE(picker.IsClosing());
    EXPECT_TRUE(Box(picker, 2).hasFocus());
    EXPECT_EQ(Box(picker, 2).selectedText(), u"O'Hara"_s);
  });
  EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
  EXPECT_EQ(Conditions(City), QStringList(u"Bern"_s));
}

TEST_F(PickersTest, SelectQ_Ok_ReplacesTheConditionsThatWereThere) {
  screen->lstElement[City].AddItem(u"Bern"_s);
  InText([](const SelectQ& picker) {
    EXPECT_EQ(Box(picker, 0).Text(), QString());
    Press(picker, u"Command1"_s);
  });
  EXPECT_TRUE(Conditions(City).isEmpty());
}

TEST_F(PickersTest, SelectQ_Exit_LeavesTheConditions) {
  screen->lstElement[City].AddItem(u"Bern"_s);
  InText([](const SelectQ& picker) {
    Type(Box(picker, 0), u"Rome"_s);
    Press(picker, u"Command2"_s);
    EXPECT_TRUE(picker.IsClosing());
  });
  EXPECT_EQ(Conditions(City), QStringList(u"Bern"_s));
}

TEST_F(PickersTest, SelectQ_Selector_ChoosesTheLineThatBeginsSo) {
  Keep({u"Rome"_s, u"Oslo"_s});
  InText([](const SelectQ& picker) {
    QTest::keyClicks(&Find<ItemSelector>(picker, u"itmsel"_s).EnterText(), u"o"_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList(u"Oslo"_s));
}

TEST_F(PickersTest, PickableValues_BlankStarAndNeighbours_AreLeftOut) {
  Keep({u"CityT"_s, u"Rome"_s, u"Rome "_s, u"*"_s, u"Rome"_s, u" "_s, u"Oslo"_s, u"oslo"_s});
  EXPECT_EQ(PickableValues(u"City"_s), QStringList({u"Rome"_s, u"Rome"_s, u"Oslo"_s, u"oslo"_s}));
}

TEST_F(PickersTest, PickableValues_Null_CountsAsTheValueBefore) {
  file->AddRow(u"CityT"_s, {{u"City"_s, db::Value::Null()}});
  Keep({u"Rome"_s});
  file->AddRow(u"CityT"_s, {{u"City"_s, db::Value::Null()}});
  Keep({u"Rome"_s});
  EXPECT_EQ(PickableValues(u"City"_s), QStringList(u"Rome"_s));
}

TEST_F(PickersTest, EnterQuery_DoubleClickOnABox_ListsAllValuesAndWritesOneText) {
  Keep({u"*"_s, u"Rome"_s, u"Rome"_s, u"Oslo"_s});
  InText([](const SelectQ& picker) {
    InDialog<EnterQuery>(
        [&] { QTest::mouseDClick(&Box(picker, 3), Qt::LeftButton); },
        [](const EnterQuery& list) {
          EXPECT_EQ(list.windowTitle(), u"Choose a Multi-Variable Query"_s);
          EXPECT_EQ(Lines(Values(list)), QStringList({u"*"_s, u"Rome"_s, u"Rome"_s, u"Oslo"_s}));
          ClickLine(Values(list), 3);
          ClickLine(Values(list), 1);
          Press(list, u"Command3"_s);
          EXPECT_TRUE(list.IsClosing());
        });
    EXPECT_EQ(Global().CurFieldIndex, 3);
    EXPECT_EQ(Box(picker, 3).Text(), u"Rome  Oslo"_s);
    Press(picker, u"Command1"_s);
  });
  EXPECT_EQ(Conditions(City), QStringList(u"Rome  Oslo"_s));
}

TEST_F(PickersTest, EnterQuery_ListKeys_OpenItOnTheBox) {
  InText([](const SelectQ& picker) {
    Box(picker, 1).SetFocus();
    InDialog<EnterQuery>([&] { QTest::keyClick(&Box(picker, 1), Qt::Key_F4); }, [](const EnterQuery&) {});
    InDialog<EnterQuery>([&] { QTest::keyClick(&Box(picker, 1), Qt::Key_Down, Qt::AltModifier); },
                         [](const EnterQuery&) {});
    EXPECT_EQ(Global().CurFieldIndex, 1);
  });
}

TEST_F(PickersTest, EnterQuery_NothingChosen_StaysOpen) {
  Keep({u"Rome"_s});
  InText([](const SelectQ& picker) {
    Type(Box(picker, 0), u"Bern"_s);
    InDialog<EnterQuery>([&] { QTest::mouseDClick(&Box(picker, 0), Qt::LeftButton); },
                         [](const EnterQuery& list) {
                           Press(list, u"Command3"_s);
                           EXPECT_FALSE(list.IsClosing());
                         });
    EXPECT_EQ(Box(picker, 0).Text(), u"Bern"_s);
  });
}

TEST_F(PickersTest, EnterQuery_Cancel_ChangesNothing) {
  Keep({u"Rome"_s});
  InText([](const SelectQ& picker) {
    InDialog<EnterQuery>([&] { QTest::mouseDClick(&Box(picker, 0), Qt::LeftButton); },
                         [](const EnterQuery& list) {
                           EXPECT_EQ(Button(list, u"CanBut"_s).Caption(), u"Cancel"_s);
                           EXPECT_EQ(Button(list, u"CanBut"_s).toolTip(), u"Click to Exit with No Changes"_s);
                           EXPECT_EQ(Button(list, u"Command3"_s).toolTip(),
                                     u"Choose Item and Click to Update"_s);
                           ClickLine(Values(list), 0);
                           Press(list, u"CanBut"_s);
                         });
    EXPECT_EQ(Box(picker, 0).Text(), QString());
  });
}

TEST_F(PickersTest, frmSelNum_EveryControl_HasItsCaptionAndTip) {
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

TEST_F(PickersTest, frmSelNum_FieldNotSet_SaysNameOfField) {
  ui::ListBox list(frame.get());
  const frmSelNum picker(list);
  EXPECT_EQ(picker.lblName[0].Caption(), u"Name of Field"_s);
  EXPECT_EQ(picker.lblName[1].Caption(), u"Name of Field"_s);
}

TEST_F(PickersTest, frmSelNum_BothGroups_GiveTwoConditions) {
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

TEST_F(PickersTest, frmSelNum_HalfAGroup_AddsNothing) {
  screen->lstElement[Turnover].AddItem(u"= 1"_s);
  InNumber([](const frmSelNum& picker) {
    Choose(picker, u"cmbEx"_s, 2);
    KeyIn(Number(picker, u"txtValue1"_s), u"10"_s);
    Press(picker, u"cmdOK"_s);
  });
  EXPECT_TRUE(Conditions(Turnover).isEmpty());
}

TEST_F(PickersTest, frmSelNum_Cancel_LeavesTheConditions) {
  screen->lstElement[Turnover].AddItem(u"= 1"_s);
  InNumber([](const frmSelNum& picker) {
    Choose(picker, u"cmbEx"_s, 0);
    KeyIn(Number(picker, u"txtValue"_s), u"5"_s);
    Press(picker, u"cmdCancel"_s);
  });
  EXPECT_EQ(Conditions(Turnover), QStringList(u"= 1"_s));
}

TEST_F(PickersTest, frmSelNum_AnyKeyButADigit_UndoesItself) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"1a2.3-4,"_s);
    EXPECT_EQ(box.Text(), u"1234"_s);
    QTest::keyClick(&box, Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(box.Text(), u"1234"_s);
  });
}

TEST_F(PickersTest, frmSelNum_Deletion_ComesBack) {
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

TEST_F(PickersTest, frmSelNum_KeyWithoutAnEdit_UndoesOneDigitOnce) {
  InNumber([](const frmSelNum& picker) {
    DigitBox& box = Number(picker, u"txtValue"_s);
    KeyIn(box, u"123"_s);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(box.Text(), u"12"_s);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(box.Text(), u"12"_s);
  });
}

TEST_F(PickersTest, frmSelNum_HeldKey_IsOneEdit) {
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

TEST_F(PickersTest, frmSelNum_TabIntoABox_UndoesNothing) {
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

TEST_F(PickersTest, frmBoolSel_EveryControl_HasItsCaptionAndTip) {
  InYesNo([](const frmBoolSel& picker) {
    EXPECT_EQ(picker.windowTitle(), u"Choose Yes/No"_s);
    EXPECT_EQ(Find<ui::CheckBox>(picker, u"cBool1"_s).Caption(), u"Active"_s);
    EXPECT_EQ(Button(picker, u"cmdOK"_s).Caption(), u"OK"_s);
    EXPECT_EQ(Button(picker, u"cmdOK"_s).toolTip(), u"Click to Confirm Setting"_s);
    EXPECT_EQ(Button(picker, u"cmdCancel"_s).Caption(), u"Cancel"_s);
    EXPECT_EQ(TabStops(), QStringList({u"cBool1"_s, u"cmdOK"_s, u"cmdCancel"_s}));
  });
}

TEST_F(PickersTest, frmBoolSel_Ticked_SaysYesAndGivesYes) {
  InYesNo([](const frmBoolSel& picker) {
    auto& box = Find<ui::CheckBox>(picker, u"cBool1"_s);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(box.Caption(), u"Yes"_s);
    Press(picker, u"cmdOK"_s);
  });
  EXPECT_EQ(Conditions(Active), QStringList(u"Yes"_s));
  EXPECT_EQ(screen->lstElement[Active].ListIndex(), 0);
}

TEST_F(PickersTest, frmBoolSel_TickedAndTakenBack_SaysNo) {
  InYesNo([](const frmBoolSel& picker) {
    auto& box = Find<ui::CheckBox>(picker, u"cBool1"_s);
    QTest::keyClick(&box, Qt::Key_Space);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(box.Caption(), u"No"_s);
    Press(picker, u"cmdOK"_s);
  });
  EXPECT_EQ(Conditions(Active), QStringList(u"No"_s));
}

TEST_F(PickersTest, frmBoolSel_Untouched_GivesNo) {
  InYesNo([](const frmBoolSel& picker) { Press(picker, u"cmdOK"_s); });
  EXPECT_EQ(Conditions(Active), QStringList(u"No"_s));
}

TEST_F(PickersTest, frmBoolSel_Cancel_RemovesTheCondition) {
  screen->lstElement[Active].AddItem(u"Yes"_s);
  InYesNo([](const frmBoolSel& picker) {
    Press(picker, u"cmdCancel"_s);
    EXPECT_TRUE(picker.IsClosing());
  });
  EXPECT_TRUE(Conditions(Active).isEmpty());
}

TEST_F(PickersTest, frmBoolSel_Escape_LeavesTheCondition) {
  screen->lstElement[Active].AddItem(u"Yes"_s);
  InYesNo([](const frmBoolSel& picker) {
    QTest::keyClick(&Find<ui::CheckBox>(picker, u"cBool1"_s), Qt::Key_Escape);
    EXPECT_TRUE(picker.IsClosing());
  });
  EXPECT_EQ(Conditions(Active), QStringList(u"Yes"_s));
}

}  // namespace velmora::test
