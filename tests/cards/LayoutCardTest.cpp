// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "tests/cards/CardScreens.h"

using namespace velmora;
using namespace velmora::test;

namespace {

// The frame's number box begins at 690 and is 855 wide.
constexpr int FirstButton = 690 + 855 + 2450;

ui::Place PlaceOf(const QWidget& screen, const QString& name) {
  auto* control = dynamic_cast<ui::Control*>(screen.findChild<QWidget*>(name));
  return control == nullptr ? ui::Place{} : control->Placed();
}

class LayoutCardTest : public CardScreensTest {
 protected:
  ShowTable& View(const ACardFile& design) {
    Make(design);
    file->AddCard(1, u"Ann"_s);
    return OpenViewer(1);
  }
  ShowTable& ViewTexts(int count) { return View(ACardFile().WithTexts(count)); }
  static ui::Place Text(const CardForm& form, int index) {
    return PlaceOf(form, u"NameText(%1)"_s.arg(index));
  }
  static ui::Place Label(const CardForm& form, int index) {
    return PlaceOf(form, u"NameLab(%1)"_s.arg(index));
  }
  static void ExpectField(const CardForm& form, int index, int labelLeft, const ui::Place& value) {
    EXPECT_EQ(Text(form, index), value) << "field " << index;
    EXPECT_EQ(Label(form, index).Left, labelLeft) << "field " << index;
    EXPECT_EQ(Label(form, index).Top, value.Top) << "field " << index;
  }
};

}  // namespace

namespace velmora::ui {
static void PrintTo(const Place& place, std::ostream* out) {
  *out << place.Left << ", " << place.Top << " size " << place.Width << " x " << place.Height;
}
}  // namespace velmora::ui

TEST_F(LayoutCardTest, LayoutCard_OneField_StandsFirstAndWide) {
  const ShowTable& form = ViewTexts(1);
  ExpectField(form, 0, 200, {1215, 960, 1815 + 6120, 285});
}

TEST_F(LayoutCardTest, LayoutCard_SevenFields_FillOneColumn) {
  const ShowTable& form = ViewTexts(7);
  for (int i = 0; i < 7; ++i) ExpectField(form, i, 200, {1215, 960 + 300 * i, 1815 + 6120, 285});
}

TEST_F(LayoutCardTest, LayoutCard_EightFields_BeginASecondColumn) {
  const ShowTable& form = ViewTexts(8);
  ExpectField(form, 6, 200, {1215, 2760, 1815 + 1500, 285});
  ExpectField(form, 7, 4670, {5835, 960, 1815 + 1500, 285});
}

TEST_F(LayoutCardTest, LayoutCard_FourteenFields_AreWidenedStill) {
  const ShowTable& form = ViewTexts(14);
  ExpectField(form, 0, 200, {1215, 960, 1815 + 1500, 285});
  ExpectField(form, 13, 4670, {5835, 2760, 1815 + 1500, 285});
}

TEST_F(LayoutCardTest, LayoutCard_FifteenFields_AreNotWidened) {
  const ShowTable& form = ViewTexts(15);
  ExpectField(form, 0, 200, {1215, 960, 1815, 285});
  ExpectField(form, 7, 3170, {4335, 960, 1815, 285});
  ExpectField(form, 14, 6290, {7455, 960, 1815, 285});
}

TEST_F(LayoutCardTest, LayoutCard_TwentyOneFields_FillThreeColumns) {
  const ShowTable& form = ViewTexts(21);
  ExpectField(form, 20, 6290, {7455, 2760, 1815, 285});
}

TEST_F(LayoutCardTest, LayoutCard_TwentyTwoFields_GoOnInAFourthColumn) {
  const ShowTable& form = ViewTexts(22);
  ExpectField(form, 21, 9410, {10575, 960, 1815, 285});
}

TEST_F(LayoutCardTest, LayoutCard_SparsePage_WidensTextsAlone) {
  const ShowTable& form = View(ACardFile()
                                   .With(NumberField(u"Size"_s))
                                   .With(YesNoField(u"Paid"_s))
                                   .With(DateField(u"Due"_s))
                                   .With(TextField(u"City"_s)));
  EXPECT_EQ(PlaceOf(form, u"NameNumber(0)"_s), (ui::Place{1215, 960, 1815, 285}));
  EXPECT_EQ(PlaceOf(form, u"NameCheck(1)"_s), (ui::Place{1215, 1260, 190, 195}));
  EXPECT_EQ(PlaceOf(form, u"NameDate(2)"_s), (ui::Place{1215, 1560, 1815, 285}));
  EXPECT_EQ(PlaceOf(form, u"NameText(3)"_s), (ui::Place{1215, 1860, 7935, 285}));
}

TEST_F(LayoutCardTest, LayoutCard_Pixels_FollowTheTwips) {
  const ShowTable& form = ViewTexts(8);
  const QWidget& box = Box(form, u"NameText(7)"_s);
  EXPECT_EQ(box.geometry().left(), ui::Pixels(5835));
  EXPECT_EQ(box.geometry().top(), ui::Pixels(960));
  EXPECT_EQ(box.geometry().right() + 1, ui::Pixels(5835 + 3315));
  EXPECT_EQ(box.geometry().bottom() + 1, ui::Pixels(960 + 285));
}

TEST_F(LayoutCardTest, LayoutCard_FieldsOnPage1Only_HaveOneButton) {
  const ShowTable& form = ViewTexts(3);
  EXPECT_EQ(form.Tab.Count(), 1);
  EXPECT_TRUE(form.Tab[0].isVisible());
  EXPECT_EQ(form.Tab[0].Placed(), (ui::Place{FirstButton, 0, 1000, 255}));
  EXPECT_EQ(form.Tab[0].Caption(), u"1"_s);
}

TEST_F(LayoutCardTest, LayoutCard_TitledPage_NamesItsButton) {
  const ShowTable& form = View(ACardFile().WithTexts(1).Titled(1, u"Address"_s));
  EXPECT_EQ(form.Tab[0].Caption(), u"Address"_s);
}

TEST_F(LayoutCardTest, LayoutCard_BlankTitle_ShowsThePageNumber) {
  Make(ACardFile().WithTexts(1).Titled(1, u"Address"_s));
  file->Database().Execute(u"Update Location Set Name = '  ' Where Type = 1");
  file->AddCard(1, u"Ann"_s);
  EXPECT_EQ(OpenViewer(1).Tab[0].Caption(), u"1"_s);
}

TEST_F(LayoutCardTest, LayoutCard_Pages1And3_PackTheirButtons) {
  const ShowTable& form = View(ACardFile().WithTexts(1).WithTexts(2, 3));
  EXPECT_EQ(form.Tab.Count(), 2);
  EXPECT_FALSE(form.Tab.Has(1));
  EXPECT_EQ(form.Tab[2].Placed(), (ui::Place{FirstButton + 1000, 0, 1000, 255}));
  EXPECT_EQ(form.Tab[2].Caption(), u"3"_s);
}

TEST_F(LayoutCardTest, LayoutCard_TenPages_HaveTwoRowsOfFiveButtons) {
  ACardFile design;
  for (int page = 1; page <= 10; ++page) design.WithTexts(1, page);
  const ShowTable& form = View(design);
  for (int index = 0; index < 10; ++index) {
    const ui::Place place{FirstButton + 1000 * (index % 5), index < 5 ? 0 : 255, 1000, 255};
    EXPECT_EQ(form.Tab[index].Placed(), place) << index;
    EXPECT_TRUE(form.Tab[index].isVisible());
  }
}

TEST_F(LayoutCardTest, LayoutCard_HundredFields_AllExistAndShowPageByPage) {
  ACardFile design;
  const std::array<int, 10> counts{21, 9, 9, 9, 9, 9, 9, 9, 9, 7};
  for (int page = 1; page <= 10; ++page)
    design.WithTexts(counts.at(static_cast<std::size_t>(page - 1)), page);
  const ShowTable& form = View(design);
  EXPECT_EQ(form.NameText.Count(), 100);
  EXPECT_EQ(form.NameLab.Count(), 100);
  int first = 0;
  for (int page = 1; page <= 10; ++page) {
    PressPage(form, page);
    const int count = counts.at(static_cast<std::size_t>(page - 1));
    for (int i = 0; i < 100; ++i) {
      const bool here = i >= first && i < first + count;
      EXPECT_EQ(form.NameText[i].isVisible(), here) << page << ": " << i;
      EXPECT_EQ(form.NameLab[i].isVisible(), here) << page << ": " << i;
    }
    first += count;
  }
}

TEST_F(LayoutCardTest, LayoutCard_FirstFieldIsADate_LeavesOtherFirstElementsHidden) {
  const ShowTable& form = View(ACardFile().With(DateField(u"Due"_s)).WithTexts(1, 2));
  EXPECT_TRUE(form.NameDate[0].isVisible());
  for (const int page : {1, 2, 1}) {
    PressPage(form, page);
    EXPECT_FALSE(form.NameText[0].isVisible());
    EXPECT_FALSE(form.NameNumber[0].isVisible());
    EXPECT_FALSE(form.NameCheck[0].isVisible());
  }
  EXPECT_TRUE(form.NameText.Has(1));
  EXPECT_FALSE(form.NameDate.Has(1));
}

TEST_F(LayoutCardTest, LayoutCard_PageRowWithoutFields_LeavesTheFieldsUnplaced) {
  Make(ACardFile().WithTexts(2));
  file->AddRow(u"Location"_s, {{u"Name"_s, u"Empty"_s}, {u"Tab"_s, 5}, {u"Type"_s, 1}});
  file->AddCard(1, u"Ann"_s, {{u"F2"_s, u"Paris"_s}});
  const ShowTable& form = OpenViewer(1);
  EXPECT_EQ(form.NameCard->Caption(), u"Name"_s);
  EXPECT_EQ(Text(form, 0), Text(form, 1));
  EXPECT_EQ(Text(form, 1).Width, 1815);
  EXPECT_EQ(form.NameText[1].Text(), u"Paris"_s);
}

TEST_F(LayoutCardTest, LayoutCard_RowOfAnUnknownCode_HasALabelAlone) {
  Make(ACardFile().WithTexts(1));
  file->AddRow(u"Location"_s, {{u"Name"_s, u"Odd"_s}, {u"Tab"_s, 1}, {u"Type"_s, 9}});
  file->AddCard(1, u"Ann"_s);
  const ShowTable& form = OpenViewer(1);
  EXPECT_EQ(form.NameLab[1].Caption(), u"Odd"_s);
  EXPECT_TRUE(form.NameLab[1].isVisible());
  EXPECT_EQ(Label(form, 1).Top, 1260);
  EXPECT_FALSE(form.NameText.Has(1));
}

TEST_F(LayoutCardTest, LayoutCard_Viewer_GivesChecksAndDatesTheFaceOfTheWindow) {
  const ShowTable& form = View(ACardFile().With(YesNoField(u"Paid"_s)).With(DateField(u"Due"_s)));
  EXPECT_EQ(form.NameCheck[0].BackColor(), ui::Role::ButtonFace);
  EXPECT_EQ(form.NameDate[1].BackColor(), ui::Role::ButtonFace);
}

TEST_F(LayoutCardTest, LayoutCard_Editor_WritesDatesInPlainInk) {
  Make(ACardFile().With(YesNoField(u"Paid"_s)).With(DateField(u"Due"_s)));
  const EditTable& form = OpenEditor();
  EXPECT_EQ(form.NameCheck[0].BackColor(), ui::Role::Default);
  EXPECT_EQ(form.NameDate[1].ForeColor(), ui::Role::Ink);
  EXPECT_EQ(form.NameDate[1].BackColor(), ui::Role::Default);
  EXPECT_EQ(PlaceOf(form, u"NameCheck(0)"_s), (ui::Place{1215, 960, 190, 225}));
}

TEST_F(LayoutCardTest, LayoutCard_EachField_IsSpokenByItsName) {
  const ShowTable& form = View(ACardFile().With(TextField(u"City"_s)).With(DateField(u"Due"_s)));
  EXPECT_EQ(form.NameText[0].accessibleName(), u"City"_s);
  EXPECT_EQ(form.NameDate[1].DateVal()->accessibleName(), u"Due"_s);
  EXPECT_EQ(form.NameRecord->accessibleName(), u"Name"_s);
}

TEST_F(LayoutCardTest, LayoutCard_Load_BuildsOutOfSight) {
  Make(ACardFile().WithTexts(21));
  file->AddCard(1, u"Ann"_s);
  Global().CurCard = 1;
  const auto& form = ui::Default<ShowTable>();
  EXPECT_EQ(form.NameText.Count(), 21);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(LayoutCardTest, FixedControls_Viewer_StandAtTheirPlaces) {
  const ShowTable& form = ViewTexts(1);
  EXPECT_EQ(form.NameCard->Left(), 200);
  EXPECT_EQ(form.NameCard->Top(), 600);
  EXPECT_EQ(form.NameRecord->Placed(), (ui::Place{1215, 600, 7095, 285}));
  EXPECT_EQ(PlaceOf(form, u"IndexText"_s), (ui::Place{1215, -15, 810, 285}));
  EXPECT_EQ(form.DescrText->Placed(), (ui::Place{200, 3330, 9205, 670}));
  EXPECT_EQ(PlaceOf(form, u"EditData"_s), (ui::Place{200, 4140, 1095, 315}));
  EXPECT_EQ(PlaceOf(form, u"CancelData"_s), (ui::Place{1830, 4140, 1095, 315}));
  EXPECT_EQ(PlaceOf(form, u"cmdEdUp"_s), (ui::Place{9090, 4020, 285, 285}));
  EXPECT_EQ(PlaceOf(form, u"cmdEdDwn"_s), (ui::Place{8790, 4020, 285, 285}));
}

TEST_F(LayoutCardTest, FixedControls_Editor_StandAtTheirPlaces) {
  Make(ACardFile().WithTexts(1));
  const EditTable& form = OpenEditor();
  EXPECT_EQ(form.NameCard->Left(), 195);
  EXPECT_EQ(form.NameRecord->Placed(), (ui::Place{1215, 600, 7215, 285}));
  EXPECT_EQ(PlaceOf(form, u"IndexText"_s), (ui::Place{1215, 0, 810, 285}));
  EXPECT_EQ(form.DescrText->Placed(), (ui::Place{200, 3330, 9205, 670}));
}

TEST_F(LayoutCardTest, InnerSize_HoldsThreeColumnsAndTheButtons) {
  const ShowTable& form = ViewTexts(21);
  for (const QString& name : {u"DescrText"_s, u"EditData"_s, u"cmdEdUp"_s, u"NameText(20)"_s}) {
    EXPECT_TRUE(form.rect().contains(Find<QWidget>(form, name).geometry())) << name.toStdString();
  }
}
