// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "queries/ResultQuery.h"
#include "queries/SavedQueries.h"
#include "queries/SelectFields.h"
#include "tests/queries/QueryScreens.h"

#include <QApplication>

namespace velmora::test {
namespace {

const QString allCards = u"SELECT [Index@],[Company] FROM  MainData "_s;

/// Cards with three columns to choose from.
class SelectFieldsTest : public QueryScreensTest {
 protected:
  SelectFieldsTest() {
    Make(ACardFile()
             .Named(u"Company"_s)
             .With(TextField(u"City"_s))
             .With(NumberField(u"Turnover"_s))
             .With(YesNoField(u"Active"_s)),
         false);
    file->AddCard(1, u"Ann"_s, {{u"City"_s, u"Paris"_s}});
    file->AddCard(2, u"Bob"_s, {{u"City"_s, u"Oslo"_s}});
  }
  ~SelectFieldsTest() override { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }

  using Work = std::function<void(SelectFields&)>;
  static void Choose(const Work& work, const QString& where = {}, const QString& base = {}) {
    InDialog<SelectFields>(
        [&] {
          auto& chooser = ui::Default<SelectFields>();
          chooser.SetWhereText(where);
          chooser.SetBaseQuery(base);
          chooser.Show(ui::ShowMode::Modal);
        },
        work);
  }
  static ui::ListBox& All(const SelectFields& chooser) { return Find<ui::ListBox>(chooser, u"List1"_s); }
  static ui::ListBox& Chosen(const SelectFields& chooser) { return Find<ui::ListBox>(chooser, u"List2"_s); }
  static ui::TextBox& Name(const SelectFields& chooser) { return Find<ui::TextBox>(chooser, u"NameQuery"_s); }
  static void Add(const SelectFields& chooser, const QList<int>& lines) {
    for (const int line : lines) ClickLine(All(chooser), line);
    Press(chooser, u"addItem"_s);
  }
  [[nodiscard]] QString Stored(const QString& name) const {
    return file->Database().QueryDefOf(name).SQL.simplified();
  }
  void Store(const QString& name) const { file->Database().CreateQueryDef(name, allCards); }
};

const QString storedAllCards = u"SELECT [Index@], [Company] FROM MainData;"_s;

}  // namespace

TEST_F(SelectFieldsTest, Load_EveryControl_HasItsCaptionAndTip) {
  Choose([](const SelectFields& chooser) {
    EXPECT_EQ(chooser.windowTitle(), u"Choice of Query Fields"_s);
    EXPECT_EQ(Find<ui::Label>(chooser, u"lblList1"_s).Caption(), u"General List  of Fields"_s);
    EXPECT_EQ(Find<ui::Label>(chooser, u"lblList2"_s).Caption(), u"Query Field List"_s);
    EXPECT_EQ(Find<ui::Label>(chooser, u"lblNameQuery"_s).Caption(), u"Query Name"_s);
    EXPECT_EQ(All(chooser).toolTip(),
              u"Choose the Desired Fields and Transfer them with the Arrows in order to Include them in the "
              "Queries"_s);
    EXPECT_EQ(Chosen(chooser).toolTip(), u"List  of Fields that Will Appear in Your Query"_s);
    EXPECT_EQ(Name(chooser).toolTip(), u"Enter Query Name"_s);
    EXPECT_EQ(Button(chooser, u"addItem"_s).toolTip(),
              u"First Choose the Desired Fields and then Transfer the Fields with the Arrows"_s);
    EXPECT_EQ(Button(chooser, u"MinusItem"_s).toolTip(),
              u"Choose Fields and Click Arrow to Return Field from Query List  to General List"_s);
    EXPECT_EQ(Button(chooser, u"AddAll"_s).Caption(), u"Select All"_s);
    EXPECT_EQ(Button(chooser, u"AddAll"_s).toolTip(), u"Transfer All Fields in List to Query"_s);
    EXPECT_EQ(Button(chooser, u"RemoveAll"_s).toolTip(),
              u"Choose Fields you Wish to Delete and Click Here"_s);
    EXPECT_EQ(Button(chooser, u"Ok"_s).toolTip(), u"Click OK Only After Choosing Query Fields"_s);
    EXPECT_EQ(Button(chooser, u"Cancel"_s).toolTip(), u"Click to Exit "_s);
    EXPECT_EQ(Button(chooser, u"CmdHelp"_s).toolTip(), u"Click for Help"_s);
  });
}

TEST_F(SelectFieldsTest, Load_RemarksAndOwnColumns_CanNeverBeChosen) {
  file->Database().AppendField(u"MainData", {.Name = u"s_Own"_s, .Type = db::FieldType::Text, .Size = 10});
  file->Database().AppendField(u"MainData", {.Name = u"Zip"_s, .Type = db::FieldType::Text, .Size = 10});
  Choose([](const SelectFields& chooser) {
    EXPECT_EQ(Lines(All(chooser)), QStringList({u"City"_s, u"Turnover"_s, u"Active"_s, u"Zip"_s}));
    EXPECT_EQ(Chosen(chooser).ListCount(), 0);
    Press(chooser, u"AddAll"_s);
    EXPECT_FALSE(Lines(Chosen(chooser)).contains(u"Remarks"_s));
  });
}

TEST_F(SelectFieldsTest, addItem_ChosenLines_GoToTheEndOnceAndLoseTheirChoice) {
  Choose([](const SelectFields& chooser) {
    Add(chooser, {2});
    Add(chooser, {2, 0});
    EXPECT_EQ(Lines(Chosen(chooser)), QStringList({u"Active"_s, u"City"_s}));
    EXPECT_EQ(All(chooser).ListCount(), 3);
    for (int line = 0; line < 3; ++line) EXPECT_FALSE(All(chooser).Selected(line));
  });
}

TEST_F(SelectFieldsTest, addItem_NothingChosen_AddsNothing) {
  Choose([](const SelectFields& chooser) {
    Press(chooser, u"addItem"_s);
    EXPECT_EQ(Chosen(chooser).ListCount(), 0);
  });
}

TEST_F(SelectFieldsTest, AddAll_SomeThereAlready_AddsTheOthersBehindThem) {
  Choose([](const SelectFields& chooser) {
    Add(chooser, {1});
    Press(chooser, u"AddAll"_s);
    EXPECT_EQ(Lines(Chosen(chooser)), QStringList({u"Turnover"_s, u"City"_s, u"Active"_s}));
    EXPECT_FALSE(All(chooser).Selected(0));
  });
}

TEST_F(SelectFieldsTest, MinusItem_ChosenLines_LeavesTheOthers) {
  Choose([](const SelectFields& chooser) {
    Press(chooser, u"AddAll"_s);
    ClickLine(Chosen(chooser), 0);
    ClickLine(Chosen(chooser), 2);
    Press(chooser, u"MinusItem"_s);
    EXPECT_EQ(Lines(Chosen(chooser)), QStringList(u"Turnover"_s));
    Press(chooser, u"MinusItem"_s);
    EXPECT_EQ(Chosen(chooser).ListCount(), 1);
  });
}

TEST_F(SelectFieldsTest, RemoveAll_Clicked_EmptiesTheQueryList) {
  Choose([](const SelectFields& chooser) {
    Press(chooser, u"AddAll"_s);
    Press(chooser, u"RemoveAll"_s);
    EXPECT_EQ(Chosen(chooser).ListCount(), 0);
    EXPECT_EQ(All(chooser).ListCount(), 3);
  });
}

TEST_F(SelectFieldsTest, Ok_NothingChosen_HasNumberAndMainField) {
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"Plain"_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(Stored(u"Plain&"_s), storedAllCards);
  EXPECT_EQ(frame->LastQuery(), u"Plain&"_s);
}

TEST_F(SelectFieldsTest, Ok_CityWithAWhereAndNoName_StoresMyQueryAndShowsItsResult) {
  Choose(
      [](const SelectFields& chooser) {
        Add(chooser, {0});
        Press(chooser, u"Ok"_s);
      },
      u"WHERE ([City]  Like '*Paris*')"_s);
  const QString sql = file->Database().QueryDefOf(u"My Query&").SQL;
  EXPECT_EQ(sql.simplified(),
            u"SELECT [Index@], [Company], [City] FROM MainData WHERE ([City] Like '*Paris*');"_s);
  EXPECT_TRUE(sql.endsWith(u";\r\n"_s));
  EXPECT_EQ(frame->LastQuery(), u"My Query&"_s);
  EXPECT_EQ(OpenScreen<SelectFields>(), nullptr);
  auto* result = OpenScreen<ResultQuery>();
  ASSERT_NE(result, nullptr);
  EXPECT_TRUE(result->isVisible());
  EXPECT_EQ(Find<ui::Label>(*result, u"lblNameQuery"_s).Caption(), u"My Query"_s);
  EXPECT_EQ(Find<ui::Label>(*result, u"lblNumber"_s).Caption(), u" 1"_s);
}

TEST_F(SelectFieldsTest, Ok_ChosenColumns_StandInTheirOrderInTheQueryList) {
  Choose([](const SelectFields& chooser) {
    Add(chooser, {2});
    Add(chooser, {0});
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(Stored(u"My Query&"_s), u"SELECT [Index@], [Company], [Active], [City] FROM MainData;"_s);
}

TEST_F(SelectFieldsTest, Ok_NameOfBlanks_IsMyQueryAndTheSecondRunAsks) {
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"   "_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(file->Database().QueryDefs(), QStringList(u"My Query&"_s));
  MessageAnswers answers({ui::MsgAnswer::Cancel});
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"  "_s);
    Press(chooser, u"Ok"_s);
    EXPECT_EQ(Name(chooser).Text(), u"My Query"_s);
  });
  EXPECT_EQ(answers.Asked().value(0).Text, u"Overwrite existing query?"_s);
  EXPECT_EQ(answers.Asked().value(0).Buttons, ui::MsgButtons::OkCancel);
}

TEST_F(SelectFieldsTest, Ok_OverwriteRefused_ChangesNothingAndStaysOpen) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Cancel});
  Choose([](const SelectFields& chooser) {
    Press(chooser, u"AddAll"_s);
    Type(Name(chooser), u"mine"_s);
    Press(chooser, u"Ok"_s);
    EXPECT_EQ(OpenScreen<SelectFields>(), &chooser);
    EXPECT_EQ(Name(chooser).Text(), u"mine"_s);
    EXPECT_EQ(Chosen(chooser).ListCount(), 3);
  });
  EXPECT_EQ(Stored(u"Mine&"_s), storedAllCards);
  EXPECT_EQ(frame->LastQuery(), QString());
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_OverwriteAgreedInOtherLetters_ReplacesTheQuery) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"mine"_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(FillQueryNames(Global().File(), {}), QStringList{u"mine"_s});
  EXPECT_NE(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_OverwriteAgreed_ReplacesTheQuery) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose([](const SelectFields& chooser) {
    Add(chooser, {0});
    Type(Name(chooser), u"Mine"_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(file->Database().QueryDefs(), QStringList(u"Mine&"_s));
  EXPECT_EQ(Stored(u"Mine&"_s), u"SELECT [Index@], [Company], [City] FROM MainData;"_s);
  EXPECT_EQ(frame->LastQuery(), u"Mine&"_s);
  EXPECT_NE(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_CatalogueSpellsTheMainFieldOtherwise_StoresTheColumnsName) {
  file->Database().Execute(u"UPDATE Location SET Name = 'COMPANY' WHERE Type = 0");
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"Mine"_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(Stored(u"Mine&"_s), storedAllCards);
}

TEST_F(SelectFieldsTest, Ok_BlankBehindATakenName_AsksButKeepsTheQueryFound) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose([](const SelectFields& chooser) {
    Add(chooser, {0});
    Type(Name(chooser), u"Mine "_s);
    Press(chooser, u"Ok"_s);
  });
  EXPECT_EQ(Stored(u"Mine&"_s), storedAllCards);
  EXPECT_EQ(Stored(u"Mine &"_s), u"SELECT [Index@], [Company], [City] FROM MainData;"_s);
  EXPECT_EQ(frame->LastQuery(), u"Mine &"_s);
  EXPECT_NE(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_NameStoredWithTheSameBlank_IsNotAskedForAndKeepsTheQueryFound) {
  Store(u"Mine &"_s);
  Choose([](const SelectFields& chooser) {
    Add(chooser, {0});
    Type(Name(chooser), u"Mine "_s);
    Press(chooser, u"Ok"_s);
    EXPECT_EQ(OpenScreen<SelectFields>(), &chooser);
  });
  EXPECT_EQ(Stored(u"Mine &"_s), storedAllCards);
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_BlankBeforeATakenName_AsksButTheEngineRefusesTheName) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u" Mine"_s);
    Press(chooser, u"Ok"_s);
    EXPECT_EQ(OpenScreen<SelectFields>(), &chooser);
  });
  EXPECT_EQ(file->Database().QueryDefs(), QStringList(u"Mine&"_s));
  EXPECT_EQ(frame->LastQuery(), u" Mine&"_s);
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Ok_NameOfTheBaseQuery_IsRefusedBeforeAnyOtherQuestion) {
  Store(u"Mine&"_s);
  MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose(
      [](const SelectFields& chooser) {
        Type(Name(chooser), u" Mine "_s);
        Press(chooser, u"Ok"_s);
        EXPECT_EQ(Name(chooser).Text(), QString());
        EXPECT_TRUE(Name(chooser).hasFocus());
        EXPECT_EQ(OpenScreen<SelectFields>(), &chooser);
      },
      {}, u"Mine"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please select a different name."_s);
  EXPECT_EQ(answers.Asked().value(0).Buttons, ui::MsgButtons::Ok);
  EXPECT_EQ(Stored(u"Mine&"_s), storedAllCards);
  EXPECT_EQ(frame->LastQuery(), QString());
}

TEST_F(SelectFieldsTest, Ok_NameOfTheBaseInOtherLetters_IsATakenName) {
  Store(u"Mine&"_s);
  MessageAnswers answers({ui::MsgAnswer::Cancel});
  Choose(
      [](const SelectFields& chooser) {
        Type(Name(chooser), u"MINE"_s);
        Press(chooser, u"Ok"_s);
      },
      {}, u"Mine"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Overwrite existing query?"_s);
}

TEST_F(SelectFieldsTest, Ok_ConditionsThatTheEngineRefuses_EndSilentlyAndKeepTheQueryFound) {
  Store(u"Mine&"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Choose(
      [](const SelectFields& chooser) {
        Type(Name(chooser), u"Mine"_s);
        Press(chooser, u"Ok"_s);
        EXPECT_EQ(OpenScreen<SelectFields>(), &chooser);
      },
      u"WHERE ([Turnover] > abc def)"_s);
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
  EXPECT_EQ(frame->LastQuery(), u"Mine&"_s);
  EXPECT_EQ(file->Database().QueryDefs(), QStringList(u"Mine&"_s));
  EXPECT_EQ(Stored(u"Mine&"_s), storedAllCards);
}

TEST_F(SelectFieldsTest, Ok_EnterInTheName_IsTheSame) {
  Choose([](const SelectFields& chooser) {
    Type(Name(chooser), u"Typed"_s);
    QTest::keyClick(&Name(chooser), Qt::Key_Return);
  });
  EXPECT_EQ(file->Database().QueryDefs(), QStringList(u"Typed&"_s));
  EXPECT_NE(OpenScreen<ResultQuery>(), nullptr);
}

TEST_F(SelectFieldsTest, Cancel_Clicked_StoresNothingAndBringsTheCardBack) {
  Choose([](const SelectFields& chooser) { Press(chooser, u"Cancel"_s); });
  EXPECT_EQ(OpenScreen<SelectFields>(), nullptr);
  EXPECT_EQ(frame->Calls, QStringList(u"ShowCard"_s));
  EXPECT_TRUE(file->Database().QueryDefs().isEmpty());
}

TEST_F(SelectFieldsTest, Close_ByEscape_LeavesTheCardAway) {
  Choose([](SelectFields& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); });
  EXPECT_EQ(OpenScreen<SelectFields>(), nullptr);
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(SelectFieldsTest, Help_Clicked_OpensTopic122) {
  Choose([](const SelectFields& chooser) { Press(chooser, u"CmdHelp"_s); });
  EXPECT_EQ(frame->Calls, QStringList(u"ShowHelpTopic 122"_s));
}

TEST_F(SelectFieldsTest, Tab_FromTheFirstList_ReachesEveryControlInOrder) {
  Choose([](const SelectFields& chooser) {
    All(chooser).setFocus();
    EXPECT_EQ(TabStops(), QStringList({u"List1"_s, u"addItem"_s, u"MinusItem"_s, u"AddAll"_s, u"RemoveAll"_s,
                                       u"List2"_s, u"NameQuery"_s, u"Ok"_s, u"Cancel"_s, u"CmdHelp"_s}));
  });
}

}  // namespace velmora::test
