// SPDX-License-Identifier: MIT
#include "cards/CardPlan.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace velmora {

static void PrintTo(const PagePlace& place, std::ostream* out) {
  *out << '(' << place.Left << ", " << place.Top << ')';
}

}  // namespace velmora

namespace {

constexpr int FirstLeft = 3000;

class CardPlanTest : public testing::Test {
 protected:
  CardPlanTest() { AddCaption(u"Customer"_s, 0, 0); }

  void AddCaption(const std::optional<QString>& name, int page, int type = 1) {
    m_captions.push_back({.Name = name, .Tab = page, .Type = type});
  }
  void AddField(FieldKind kind, int page = 1) { AddRow(TypeOf(kind), page); }
  void AddRow(std::int32_t type, int page) {
    m_fields.push_back({.Name = u'F' + QString::number(m_fields.size()), .Tab = page, .Type = type});
  }
  void AddTexts(int count, int page = 1) {
    for (int i = 0; i < count; ++i) AddField(FieldKind::Text, page);
  }
  [[nodiscard]] CardPlan Plan() const { return PlanCard(m_fields, m_captions, FirstLeft); }
  /// The places of the values of one page.
  [[nodiscard]] std::vector<PagePlace> ValuesOf(int count) {
    m_fields.clear();
    AddTexts(count);
    std::vector<PagePlace> places;
    for (const PlannedField& field : Plan().Fields) places.push_back(field.Value.value());
    return places;
  }
  [[nodiscard]] std::vector<PagePlace> LabelsOf(int count) {
    m_fields.clear();
    AddTexts(count);
    std::vector<PagePlace> places;
    for (const PlannedField& field : Plan().Fields) places.push_back(field.Label.value());
    return places;
  }
  [[nodiscard]] int TextWidthOf(int count) {
    m_fields.clear();
    AddTexts(count);
    return Plan().Fields.front().ValueWidth;
  }
  [[nodiscard]] std::map<int, PagePlace> Buttons() const {
    std::map<int, PagePlace> places;
    for (const PlannedButton& button : Plan().Buttons) places[button.At.Element] = button.At.Place;
    return places;
  }

  std::vector<CatalogueRow> m_fields;
  std::vector<CatalogueRow> m_captions;
};

std::vector<PagePlace> ColumnAt(int left, int count = 7) {
  std::vector<PagePlace> places;
  for (int row = 0; row < count; ++row) places.push_back({left, 960 + 300 * row});
  return places;
}

std::vector<PagePlace> Join(std::initializer_list<std::vector<PagePlace>> columns) {
  std::vector<PagePlace> all;
  for (const auto& column : columns) all.insert(all.end(), column.begin(), column.end());
  return all;
}

}  // namespace

TEST_F(CardPlanTest, PlanCard_OneField_StandsAtTheTopAndIsWidest) {
  EXPECT_EQ(ValuesOf(1), ColumnAt(1215, 1));
  EXPECT_EQ(LabelsOf(1), ColumnAt(200, 1));
  EXPECT_EQ(TextWidthOf(1), 1815 + 6120);
}

TEST_F(CardPlanTest, PlanCard_SevenFields_AreOneColumn) {
  EXPECT_EQ(ValuesOf(7), ColumnAt(1215));
  EXPECT_EQ(ValuesOf(7).back(), (PagePlace{1215, 2760}));
  EXPECT_EQ(LabelsOf(7), ColumnAt(200));
  EXPECT_EQ(TextWidthOf(7), 7935);
}

TEST_F(CardPlanTest, PlanCard_EightFields_AreTwoColumns) {
  EXPECT_EQ(ValuesOf(8), Join({ColumnAt(1215), ColumnAt(5835, 1)}));
  EXPECT_EQ(LabelsOf(8), Join({ColumnAt(200), ColumnAt(4670, 1)}));
  EXPECT_EQ(TextWidthOf(8), 1815 + 1500);
}

TEST_F(CardPlanTest, PlanCard_FourteenFields_AreStillWidened) {
  EXPECT_EQ(ValuesOf(14), Join({ColumnAt(1215), ColumnAt(5835)}));
  EXPECT_EQ(LabelsOf(14), Join({ColumnAt(200), ColumnAt(4670)}));
  EXPECT_EQ(TextWidthOf(14), 3315);
}

TEST_F(CardPlanTest, PlanCard_FifteenFields_AreNotWidened) {
  EXPECT_EQ(ValuesOf(15), Join({ColumnAt(1215), ColumnAt(4335), ColumnAt(7455, 1)}));
  EXPECT_EQ(LabelsOf(15), Join({ColumnAt(200), ColumnAt(3170), ColumnAt(6290, 1)}));
  EXPECT_EQ(TextWidthOf(15), 1815);
}

TEST_F(CardPlanTest, PlanCard_TwentyOneFields_FillThreeColumns) {
  EXPECT_EQ(ValuesOf(21), Join({ColumnAt(1215), ColumnAt(4335), ColumnAt(7455)}));
  EXPECT_EQ(LabelsOf(21), Join({ColumnAt(200), ColumnAt(3170), ColumnAt(6290)}));
}

TEST_F(CardPlanTest, PlanCard_TwentyTwoFields_GoOnInAFourthColumn) {
  EXPECT_EQ(ValuesOf(22).back(), (PagePlace{10575, 960}));
  EXPECT_EQ(LabelsOf(22).back(), (PagePlace{9410, 960}));
}

TEST_F(CardPlanTest, PlanCard_OtherKinds_KeepTheirWidth) {
  AddField(FieldKind::Number);
  AddField(FieldKind::YesNo);
  AddField(FieldKind::Date);
  AddField(FieldKind::Text);
  const CardPlan plan = Plan();
  EXPECT_EQ(plan.Fields[0].ValueWidth, 1815);
  EXPECT_EQ(plan.Fields[1].ValueWidth, 190);
  EXPECT_EQ(plan.Fields[2].ValueWidth, 1815);
  EXPECT_EQ(plan.Fields[3].ValueWidth, 7935);
}

TEST_F(CardPlanTest, PlanCard_AllFieldsOnPage1_ShowOneButton) {
  AddTexts(3);
  AddCaption(u"Address"_s, 1);
  const CardPlan plan = Plan();
  ASSERT_EQ(plan.Buttons.size(), 1U);
  EXPECT_EQ(plan.Buttons[0].At.Place, (PagePlace{FirstLeft, 0}));
  EXPECT_EQ(plan.Buttons[0].Caption, u"Address"_s);
  EXPECT_EQ(plan.NameCard, u"Customer"_s);
  EXPECT_TRUE(plan.Finished);
}

TEST_F(CardPlanTest, PlanCard_PageWithoutTitle_ShowsItsNumber) {
  AddTexts(1, 1);
  AddTexts(1, 2);
  AddTexts(1, 3);
  AddCaption(std::nullopt, 1);
  AddCaption(u"  "_s, 3);
  const CardPlan plan = Plan();
  EXPECT_EQ(plan.Buttons[0].Caption, u"1"_s);
  EXPECT_EQ(plan.Buttons[1].Caption, u"2"_s);
  EXPECT_EQ(plan.Buttons[2].Caption, u"3"_s);
}

TEST_F(CardPlanTest, PlanCard_Pages1And3_StandSideBySide) {
  AddTexts(1, 1);
  AddTexts(1, 3);
  AddCaption(u"One"_s, 1);
  AddCaption(u"Three"_s, 3);
  EXPECT_EQ(Buttons(), (std::map<int, PagePlace>{{0, {FirstLeft, 0}}, {2, {FirstLeft + 1000, 0}}}));
  EXPECT_EQ(Plan().Buttons[1].Caption, u"Three"_s);
}

TEST_F(CardPlanTest, PlanCard_AllTenPages_ShowTwoRowsOfFiveButtons) {
  for (int page = 1; page <= 10; ++page) AddTexts(1, page);
  std::map<int, PagePlace> expected;
  for (int index = 0; index < 10; ++index) {
    expected[index] = {FirstLeft + 1000 * (index % 5), index < 5 ? 0 : 255};
  }
  EXPECT_EQ(Buttons(), expected);
}

TEST_F(CardPlanTest, PlanCard_Page1WithoutFields_KeepsItsButton) {
  AddTexts(1, 2);
  AddTexts(1, 9);
  EXPECT_EQ(Buttons(), (std::map<int, PagePlace>{
                           {0, {FirstLeft, 0}}, {1, {FirstLeft + 1000, 0}}, {8, {FirstLeft + 2000, 0}}}));
}

TEST_F(CardPlanTest, PlanCard_FieldsOfSeveralPages_AreNumberedThrough) {
  AddTexts(1, 3);
  AddField(FieldKind::Date, 1);
  AddTexts(1, 1);
  const CardPlan plan = Plan();
  ASSERT_EQ(plan.Fields.size(), 3U);
  EXPECT_EQ(plan.Fields[0].Caption, u"F1"_s);
  EXPECT_EQ(plan.Fields[0].Kind, FieldKind::Date);
  EXPECT_EQ(plan.Fields[1].Caption, u"F2"_s);
  EXPECT_EQ(plan.Fields[2].Caption, u"F0"_s);
  EXPECT_EQ(plan.Fields[2].Index, 2);
  EXPECT_EQ(plan.Fields[2].Page, 3);
  EXPECT_EQ(plan.Fields[2].Value, (PagePlace{1215, 960}));
}

TEST_F(CardPlanTest, PlanCard_UnknownCode_HasALabelAndUsesUpANumber) {
  AddRow(9, 1);
  AddTexts(1);
  const CardPlan plan = Plan();
  EXPECT_EQ(plan.Fields[0].Kind, std::nullopt);
  EXPECT_EQ(plan.Fields[0].Label, (PagePlace{200, 960}));
  EXPECT_EQ(plan.Fields[0].Value, std::nullopt);
  EXPECT_EQ(plan.Fields[1].Index, 1);
  EXPECT_EQ(plan.Fields[1].Label, (PagePlace{200, 1260}));
  EXPECT_EQ(plan.Fields[1].Value, (PagePlace{1215, 960}));
}

TEST_F(CardPlanTest, PlanCard_UnknownCodeAlone_DoesNotPutAPageInUse) {
  AddTexts(1, 1);
  AddRow(9, 2);
  EXPECT_EQ(Plan().Buttons.size(), 1U);
}

TEST_F(CardPlanTest, PlanCard_TitleOfAPageWithoutFields_LeavesOutAllPlaces) {
  AddTexts(1, 1);
  AddTexts(1, 3);
  AddCaption(u"One"_s, 1);
  AddCaption(u"Two"_s, 2);
  AddCaption(u"Three"_s, 3);
  const CardPlan plan = Plan();
  EXPECT_FALSE(plan.Finished);
  EXPECT_EQ(plan.Fields.size(), 2U);
  EXPECT_EQ(plan.Fields[0].Value, std::nullopt);
  EXPECT_EQ(plan.Fields[0].Label, std::nullopt);
  EXPECT_EQ(plan.Fields[0].ValueWidth, 1815);
  EXPECT_EQ(plan.Buttons[0].Caption, u"One"_s);
  EXPECT_EQ(plan.Buttons[1].Caption, QString());
}

TEST_F(CardPlanTest, PlanCard_UntitledPageWithoutFields_DoesNoHarm) {
  AddTexts(1, 1);
  AddCaption(std::nullopt, 2);
  EXPECT_TRUE(Plan().Finished);
}

TEST_F(CardPlanTest, PlanCard_TitleOfPage1WithoutFields_StandsOnItsButton) {
  AddTexts(1, 2);
  AddCaption(u"One"_s, 1);
  const CardPlan plan = Plan();
  EXPECT_TRUE(plan.Finished);
  EXPECT_EQ(plan.Buttons[0].Caption, u"One"_s);
}

TEST_F(CardPlanTest, PlanCard_FieldWithoutName_EndsThePlanThere) {
  AddTexts(2);
  m_fields[1].Name.reset();
  const CardPlan plan = Plan();
  EXPECT_FALSE(plan.Finished);
  EXPECT_EQ(plan.Fields.size(), 1U);
  EXPECT_TRUE(plan.Buttons.empty());
}

TEST_F(CardPlanTest, PlanCard_EmptyCatalogue_HasTheFirstButtonAlone) {
  m_captions.clear();
  const CardPlan plan = Plan();
  EXPECT_FALSE(plan.Finished);
  EXPECT_EQ(plan.Buttons.size(), 1U);
}

TEST_F(CardPlanTest, PlanCard_DesignAtItsLimits_PlacesEveryField) {
  AddTexts(21, 1);
  for (int page = 2; page <= 9; ++page) AddTexts(8, page);
  AddTexts(15, 10);
  const CardPlan plan = Plan();
  ASSERT_EQ(plan.Fields.size(), 100U);
  EXPECT_EQ(plan.Buttons.size(), 10U);
  std::map<int, int> widthOfPage;
  for (const PlannedField& field : plan.Fields) {
    EXPECT_TRUE(field.Value && field.Label) << field.Index;
    widthOfPage[field.Page] = field.ValueWidth;
  }
  EXPECT_EQ(widthOfPage[1], 1815);
  EXPECT_EQ(widthOfPage[5], 3315);
  EXPECT_EQ(widthOfPage[10], 1815);
  EXPECT_EQ(plan.Fields[20].Value, (PagePlace{7455, 2760}));
  EXPECT_EQ(plan.Fields.back().Value, (PagePlace{7455, 960}));
}
