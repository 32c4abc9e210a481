// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "forms/Screen.h"
#include "queries/SelectFields.h"
#include "queries/SelectQ.h"
#include "queries/frmBoolSel.h"
#include "queries/frmSelNum.h"
#include "tests/queries/QueryScreens.h"
#include "tests/support/Screens.h"

#include <QHelpEvent>
#include <QToolTip>

namespace velmora::test {
namespace {

/// One field of each kind on page 1, a text on page 3.
class QueryNTest : public QueryScreensTest {
 protected:
  static ACardFile OfAllKinds() {
    return ACardFile()
        .With(TextField(u"City"_s))
        .With(NumberField(u"Turnover"_s))
        .With(YesNoField(u"Active"_s))
        .With(DateField(u"Due"_s))
        .With(TextField(u"Trade"_s), 3)
        .Titled(1, u"Head"_s);
  }
  enum Element { City, Turnover, Active, Due, Trade };

  void Save(const QString& name, const QString& sql) const { file->Database().CreateQueryDef(name, sql); }
  /// Goes on from the query screen and takes the name "My Query"; gives the statement that was stored.
  [[nodiscard]] QString RunQuery(const QueryN& screen) const {
    InDialog<SelectFields>([&] { Press(screen, u"EditData"_s); },
                           [](const SelectFields& chooser) { Press(chooser, u"Ok"_s); });
    return file->Database().QueryDefOf(u"My Query&").SQL.simplified();
  }
  static QString Shown(const QueryN& screen) {
    QStringList names;
    screen.butField.ForEach([&names](const ui::SSCommand& button) {
      if (button.isVisible()) names += button.Caption();
    });
    screen.lstElement.ForEach([&](const ConditionList& list) {
      EXPECT_EQ(list.isVisible(), screen.butField[list.Index()].isVisible());
    });
    return names.join(u',');
  }
  static ui::Place PlaceOf(const QueryN& screen, int list) { return screen.lstElement[list].Placed(); }
};

}  // namespace

TEST_F(QueryNTest, Load_EveryField_HasItsButtonAndListOnItsPage) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  EXPECT_EQ(screen.windowTitle(), u"Preparation of Query Components"_s);
  EXPECT_EQ(Shown(screen), u"City,Turnover,Active,Due"_s);
  EXPECT_EQ(screen.butField[Trade].Caption(), u"Trade"_s);
  EXPECT_EQ(screen.butField.Count(), 5);
  EXPECT_EQ(screen.lstElement.Count(), 5);
}

TEST_F(QueryNTest, Load_EveryControl_HasItsCaptionAndTip) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  EXPECT_EQ(screen.Tabl[2].toolTip(), u"Click to View an Additional Page of Categories/Fields"_s);
  EXPECT_EQ(screen.butField[Due].toolTip(), u"Click to View Query Components"_s);
  EXPECT_EQ(screen.lstElement[Due].toolTip(), u"Click to View your Selected Query Field Components"_s);
  EXPECT_EQ(screen.lstElement[Due].accessibleName(), u"Due"_s);
  EXPECT_EQ(Find<ui::Label>(screen, u"Label1"_s).Caption(), u"AND  Type  Query"_s);
  EXPECT_EQ(Find<ui::Label>(screen, u"Label2"_s).Caption(), u"OR Type Query"_s);
  EXPECT_EQ(Find<ui::Label>(screen, u"Label4"_s).Caption(), u"Choice of Query Data"_s);
  EXPECT_EQ(screen.cmdQuery->toolTip(), u"Choose the Name of a Query"_s);
  EXPECT_EQ(Button(screen, u"EditData"_s).Caption(), u"OK"_s);
  EXPECT_EQ(Button(screen, u"EditData"_s).toolTip(),
            u"Click OK after You Have Chosen All Query Components"_s);
  EXPECT_EQ(Button(screen, u"CancelData"_s).Caption(), u"Cancel"_s);
  EXPECT_EQ(Button(screen, u"CancelData"_s).toolTip(), u"Click Cancel to Exit "_s);
  EXPECT_EQ(Button(screen, u"CmdHelp"_s).Caption(), u"Help"_s);
  EXPECT_EQ(Button(screen, u"CmdHelp"_s).toolTip(), u"Click for Help"_s);
  EXPECT_TRUE(screen.optAnd[0].Value());
  EXPECT_FALSE(screen.optAnd[1].Value());
}

TEST_F(QueryNTest, Load_NoCards_StaysEmpty) {
  Make(OfAllKinds(), false);
  const QueryN& screen = Open();
  EXPECT_EQ(Shown(screen), QString());
  EXPECT_EQ(screen.butField.Count(), 1);
  EXPECT_FALSE(screen.Tabl[0].isVisible());
}

TEST_F(QueryNTest, Load_SevenFields_StandInOneWideColumn) {
  Make(ACardFile().WithTexts(7));
  const QueryN& screen = Open();
  EXPECT_EQ(screen.butField[0].Placed(), (ui::Place{.Left = 255, .Top = 1470, .Width = 1200, .Height = 285}));
  EXPECT_EQ(PlaceOf(screen, 0), (ui::Place{.Left = 1500, .Top = 1470, .Width = 7920, .Height = 285}));
  EXPECT_EQ(PlaceOf(screen, 6), (ui::Place{.Left = 1500, .Top = 3270, .Width = 7920, .Height = 285}));
}

TEST_F(QueryNTest, Load_EightFields_StandInTwoColumns) {
  Make(ACardFile().WithTexts(8));
  const QueryN& screen = Open();
  EXPECT_EQ(PlaceOf(screen, 6).Left, 1500);
  EXPECT_EQ(PlaceOf(screen, 7), (ui::Place{.Left = 6120, .Top = 1470, .Width = 3300, .Height = 285}));
  EXPECT_EQ(screen.butField[7].Left(), 4875);
}

TEST_F(QueryNTest, Load_FifteenFields_StandInThreeColumnsInsideTheScreen) {
  Make(ACardFile().WithTexts(21));
  const QueryN& screen = Open();
  EXPECT_EQ(PlaceOf(screen, 14), (ui::Place{.Left = 7740, .Top = 1470, .Width = 1800, .Height = 285}));
  EXPECT_EQ(PlaceOf(screen, 20).Top, 3270);
  EXPECT_TRUE(screen.rect().contains(screen.lstElement[20].geometry()));
}

TEST_F(QueryNTest, Load_PageButtons_LineUpWithTheSeekBox) {
  ACardFile design;
  for (int page = 1; page <= 10; ++page) design.WithTexts(1, page);
  Make(design);
  const QueryN& screen = Open();
  constexpr int first = 690 + 855 + 2450;
  EXPECT_EQ(screen.Tabl[0].Left(), first);
  EXPECT_EQ(screen.Tabl[4].Left(), first + 4000);
  EXPECT_EQ(screen.Tabl[4].Top(), 0);
  EXPECT_EQ(screen.Tabl[5].Left(), first);
  EXPECT_EQ(screen.Tabl[5].Top(), 255);
  EXPECT_EQ(screen.Tabl[9].Left(), first + 4000);
  EXPECT_EQ(screen.Tabl[9].Top(), 255);
}

TEST_F(QueryNTest, Load_PageWithoutFields_HasNoButtonAndTheGapCloses) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  EXPECT_FALSE(screen.Tabl.Has(1));
  EXPECT_EQ(screen.Tabl[2].Left(), screen.Tabl[0].Left() + 1000);
  EXPECT_EQ(screen.Tabl[0].Caption(), u"Head"_s);
  EXPECT_EQ(screen.Tabl[2].Caption(), u" 3"_s);
}

TEST_F(QueryNTest, Load_FirstPageWithoutFields_KeepsItsButton) {
  Make(ACardFile().WithTexts(1, 2));
  const QueryN& screen = Open();
  EXPECT_TRUE(screen.Tabl[0].isVisible());
  EXPECT_EQ(screen.Tabl[0].Caption(), u" 1"_s);
  EXPECT_EQ(Shown(screen), QString());
  Click(screen.Tabl[1]);
  EXPECT_EQ(Shown(screen), u"F1"_s);
}

TEST_F(QueryNTest, Load_SavedQueries_StandBehindAll) {
  Make(OfAllKinds());
  Save(u"Customers&"_s, u"SELECT [Index@] FROM  MainData "_s);
  Save(u"People&"_s, u"SELECT * FROM Agents"_s);
  const QueryN& screen = Open();
  EXPECT_EQ(screen.cmdQuery->ListCount(), 2);
  EXPECT_EQ(screen.cmdQuery->List(0), u"All"_s);
  EXPECT_EQ(screen.cmdQuery->List(1), u"Customers"_s);
  EXPECT_EQ(screen.cmdQuery->ListIndex(), 0);
}

TEST_F(QueryNTest, Tabl_Clicked_ShowsItsPageAloneAndColoursTheButtons) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  EXPECT_EQ(screen.Tabl[0].ForeColor(), ui::Role::Red);
  Click(screen.Tabl[2]);
  EXPECT_EQ(Shown(screen), u"Trade"_s);
  EXPECT_EQ(screen.Tabl[0].ForeColor(), ui::Role::Blue);
  EXPECT_EQ(screen.Tabl[2].ForeColor(), ui::Role::Red);
  Click(screen.Tabl[0]);
  EXPECT_EQ(Shown(screen), u"City,Turnover,Active,Due"_s);
  EXPECT_EQ(screen.Tabl[2].ForeColor(), ui::Role::Blue);
}

TEST_F(QueryNTest, Activate_BackFromAnotherScreen_ShowsPage1Alone) {
  Make(OfAllKinds());
  QueryN& screen = Open();
  Click(screen.Tabl[2]);
  auto& other = ui::Default<OtherScreen>();
  other.Show();
  QApplication::processEvents();
  EXPECT_EQ(Shown(screen), u"Trade"_s);
  screen.BringToFront();
  QApplication::processEvents();
  EXPECT_EQ(Shown(screen), u"City,Turnover,Active,Due"_s);
  EXPECT_EQ(screen.Tabl[0].ForeColor(), ui::Role::Red);
}

TEST_F(QueryNTest, FieldButton_OfEachKind_OpensItsPicker) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  InDialog<SelectQ>([&] { Click(screen.butField[City]); },
                    [](const SelectQ& picker) {
                      EXPECT_EQ(picker.ItemIndex(), City);
                      EXPECT_EQ(picker.FieldName(), u"City"_s);
                    });
  InDialog<frmSelNum>([&] { Click(screen.butField[Turnover]); },
                      [](const frmSelNum& picker) {
                        EXPECT_EQ(picker.ItemIndex(), Turnover);
                        EXPECT_EQ(picker.lblName[0].Caption(), u"Turnover"_s);
                        EXPECT_EQ(picker.lblName[1].Caption(), u"Turnover"_s);
                      });
  InDialog<frmBoolSel>([&] { Click(screen.butField[Active]); },
                       [](const frmBoolSel& picker) {
                         EXPECT_EQ(picker.ItemIndex(), Active);
                         EXPECT_EQ(Find<ui::CheckBox>(picker, u"cBool1"_s).Caption(), u"Active"_s);
                       });
}

TEST_F(QueryNTest, FieldButton_OfADate_DoesNothing) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  Click(screen.butField[Due]);
  EXPECT_EQ(ui::Forms().size(), 2);
  EXPECT_EQ(screen.lstElement[Due].ListCount(), 0);
}

TEST_F(QueryNTest, FieldButton_CatalogueChangedMeanwhile_OpensThePickerOfTheKindThatWasRead) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  file->Database().Execute(u"Delete * from Location Where Name = 'City'");
  InDialog<SelectQ>([&] { Click(screen.butField[City]); },
                    [](const SelectQ& picker) { EXPECT_EQ(picker.FieldName(), u"City"_s); });
}

TEST_F(QueryNTest, FieldButton_FieldTakenForAPage_DoesNothing) {
  Make(ACardFile().With(TextField(u"City"_s)).Titled(1, u"City"_s));
  const QueryN& screen = Open();
  Click(screen.butField[City]);
  EXPECT_EQ(ui::Forms().size(), 2);
}

TEST_F(QueryNTest, FieldButton_NameWithAnApostropheFromAnotherProgram_OpensItsPicker) {
  Make(OfAllKinds());
  file->Database().AppendField(u"MainData", {.Name = u"L'Aquila"_s, .Type = db::FieldType::YesNo});
  file->AddRow(u"Location"_s, {{u"Name"_s, u"L'Aquila"_s}, {u"Tab"_s, 1}, {u"Type"_s, 4}});
  const QueryN& screen = Open();
  InDialog<frmBoolSel>([&] { Click(screen.butField[Trade]); },
                       [](const frmBoolSel& picker) {
                         EXPECT_EQ(Find<ui::CheckBox>(picker, u"cBool1"_s).Caption(), u"L'Aquila"_s);
                       });
}

TEST_F(QueryNTest, Picker_ClosedOverPage3_LeavesPage3InView) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  Click(screen.Tabl[2]);
  InDialog<SelectQ>([&] { Click(screen.butField[Trade]); },
                    [](const SelectQ& picker) {
                      Type(Find<ui::TextBox>(picker, u"txtSelect(0)"_s), u"Tools"_s);
                      Press(picker, u"Command1"_s);
                    });
  EXPECT_EQ(Shown(screen), u"Trade"_s);
  EXPECT_EQ(Lines(screen.lstElement[Trade]), QStringList(u"Tools"_s));
}

TEST_F(QueryNTest, Ok_NoConditions_StoresAQueryOfAllCards) {
  Make(OfAllKinds());
  EXPECT_EQ(RunQuery(Open()), u"SELECT [Index@], [Name] FROM MainData;"_s);
}

TEST_F(QueryNTest, Ok_ConditionsOnBothPages_JoinsTheFieldsByAnd) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  screen.lstElement[City].AddItems({u"Paris"_s, u"Lyon"_s});
  screen.lstElement[Turnover].AddItem(u"> 100"_s);
  screen.lstElement[Trade].AddItem(u"Tools"_s);
  EXPECT_EQ(RunQuery(screen),
            u"SELECT [Index@], [Name] FROM MainData WHERE ([City] Like '*Paris*' OR [City] Like '*Lyon*') "
            "AND ([Turnover] > 100) AND ([Trade] Like '*Tools*');"_s);
}

TEST_F(QueryNTest, Ok_OrTypeOnASavedQuery_BindsItToTheFirstFieldOnly) {
  Make(OfAllKinds());
  Save(u"Customers&"_s, u"SELECT [Index@] FROM  MainData "_s);
  const QueryN& screen = Open();
  screen.lstElement[Turnover].AddItems({u"< 5"_s, u"> 10"_s});
  screen.lstElement[Active].AddItem(u"Yes"_s);
  Click(Find<ui::Label>(screen, u"Label2"_s));
  EXPECT_TRUE(screen.optAnd[1].Value());
  screen.cmdQuery->setFocus();
  QTest::keyClick(screen.cmdQuery, Qt::Key_Down);
  EXPECT_EQ(RunQuery(screen),
            u"SELECT [Index@], [Name] FROM MainData WHERE ([Index@] = ANY ( Select [Index@] From "
            "[Customers&])) AND ([Turnover] < 5 OR [Turnover] > 10) OR ([Active] = TRUE);"_s);
}

TEST_F(QueryNTest, Ok_YesNoListWithTwoLines_TakesTheFirst) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  screen.lstElement[Active].AddItems({u"No"_s, u"Yes"_s});
  EXPECT_EQ(RunQuery(screen), u"SELECT [Index@], [Name] FROM MainData WHERE ([Active] = FALSE);"_s);
}

TEST_F(QueryNTest, Ok_BaseQuery_ReachesTheChoiceOfColumns) {
  Make(OfAllKinds());
  Save(u"Customers&"_s, u"SELECT [Index@] FROM  MainData "_s);
  const QueryN& screen = Open();
  screen.cmdQuery->SetListIndex(1);
  MessageAnswers answers({ui::MsgAnswer::Ok});
  InDialog<SelectFields>([&] { Press(screen, u"EditData"_s); },
                         [](const SelectFields& chooser) {
                           EXPECT_EQ(OpenScreen<QueryN>(), nullptr);
                           Type(Find<ui::TextBox>(chooser, u"NameQuery"_s), u"Customers"_s);
                           Press(chooser, u"Ok"_s);
                         });
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please select a different name."_s);
}

TEST_F(QueryNTest, Ok_FileGone_LeavesTheScreenInSilence) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  screen.lstElement[City].AddItem(u"Paris"_s);
  file->Database().Close();
  Press(screen, u"EditData"_s);
  EXPECT_EQ(OpenScreen<SelectFields>(), nullptr);
  EXPECT_EQ(OpenScreen<QueryN>(), &screen);
}

TEST_F(QueryNTest, Cancel_Clicked_StartsAgainWithEmptyLists) {
  Make(OfAllKinds());
  QPointer<QueryN> before = &Open();
  before->lstElement[City].AddItem(u"Paris"_s);
  Press(*before, u"CancelData"_s);
  auto* after = OpenScreen<QueryN>();
  ASSERT_NE(after, nullptr);
  EXPECT_NE(after, before.data());
  EXPECT_TRUE(after->isVisible());
  EXPECT_EQ(after->lstElement[City].ListCount(), 0);
  EXPECT_EQ(ui::Forms().size(), 2);
}

TEST_F(QueryNTest, Close_ByEscape_BringsNoCardScreenBack) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  QTest::keyClick(&screen.butField[City], Qt::Key_Escape);
  EXPECT_EQ(OpenScreen<QueryN>(), nullptr);
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(QueryNTest, Help_Clicked_OpensTopic122) {
  Make(OfAllKinds());
  Press(Open(), u"CmdHelp"_s);
  EXPECT_EQ(frame->LastCall(), u"ShowHelpTopic 122"_s);
}

TEST_F(QueryNTest, Tab_FromTheKind_ReachesEveryControlOfThePageInOrder) {
  Make(OfAllKinds());
  QueryN& screen = Open();
  screen.optAnd[0].SetFocus();
  EXPECT_EQ(TabStops(),
            QStringList({u"optAnd(0)"_s, u"cmdQuery"_s, u"Tabl(0)"_s, u"Tabl(2)"_s, u"butField(0)"_s,
                         u"lstElement(0)"_s, u"butField(1)"_s, u"lstElement(1)"_s, u"butField(2)"_s,
                         u"lstElement(2)"_s, u"butField(3)"_s, u"lstElement(3)"_s, u"EditData"_s,
                         u"CancelData"_s, u"CmdHelp"_s}));
}

TEST_F(QueryNTest, EnterAndSpace_OnAFieldButton_OpenItsPicker) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    screen.butField[City].setFocus();
    InDialog<SelectQ>([&] { QTest::keyClick(&screen.butField[City], key); }, [](const SelectQ&) {});
  }
}

TEST_F(QueryNTest, PageKeys_OnAField_StepThroughThePagesWithFields) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  screen.butField[City].setFocus();
  QTest::keyClick(&screen.butField[City], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Shown(screen), u"Trade"_s);
  EXPECT_TRUE(screen.butField[Trade].hasFocus());
  QTest::keyClick(&screen.butField[Trade], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Shown(screen), u"Trade"_s);
  QTest::keyClick(&screen.butField[Trade], Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Shown(screen), u"City,Turnover,Active,Due"_s);
}

TEST_F(QueryNTest, List_SeveralConditions_ShowsOneWholeLineAndAllInItsTip) {
  Make(OfAllKinds());
  const QueryN& screen = Open();
  ConditionList& list = screen.lstElement[City];
  list.AddItems({u"Paris"_s, u"<b>Lyon</b>"_s, u"Nice"_s});
  QApplication::processEvents();
  EXPECT_EQ(list.visualRect(list.model()->index(0, 0)).height(), list.viewport()->height());
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.TopIndex(), list.ListIndex());
  QHelpEvent help(QEvent::ToolTip, {2, 2}, list.viewport()->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(list.viewport(), &help);
  EXPECT_TRUE(QToolTip::text().contains(u"Click to View your Selected Query Field Components"_s));
  EXPECT_TRUE(QToolTip::text().contains(u"Paris<br>&lt;b&gt;Lyon&lt;/b&gt;<br>Nice"_s));
  QToolTip::hideText();
}

}  // namespace velmora::test
