// SPDX-License-Identifier: MIT
#include "tests/queries/Pickers.h"

namespace velmora::test {

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
