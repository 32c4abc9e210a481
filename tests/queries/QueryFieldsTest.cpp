// SPDX-License-Identifier: MIT
#include "frame/Session.h"
#include "queries/QueryFields.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

ACardFile Design() {
  return ACardFile()
      .Named(u"Company"_s)
      .With(TextField(u"City"_s))
      .With(NumberField(u"Turnover"_s), 3)
      .With(YesNoField(u"Active"_s))
      .Titled(3, u"Figures"_s);
}

QStringList Lines(const QueryFields& read) {
  QStringList lines;
  for (const QueryFields::Entry& field : read.Fields) lines += u"%1/%2"_s.arg(field.Caption).arg(field.Page);
  return lines;
}

}  // namespace

TEST(QueryFields, ReadQueryFields_FileWithoutCards_IsEmpty) {
  const CardFile file = Design().Make();
  const QueryFields read = ReadQueryFields();
  EXPECT_TRUE(read.Fields.empty());
  EXPECT_EQ(read.PageCaptions[0], QString());
}

TEST(QueryFields, ReadQueryFields_NoFile_Fails) {
  Global() = Session();
  EXPECT_EQ(ErrorNumberOf([] { std::ignore = ReadQueryFields(); }), 3420);
}

TEST(QueryFields, ReadQueryFields_GoesPageByPageInTheCataloguesOrder) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  // Added later to an early page, so behind all others in the catalogue.
  file.AddRow(u"Location"_s, {{u"Name"_s, u"Area"_s}, {u"Tab"_s, 1}, {u"Type"_s, 2}});
  EXPECT_EQ(Lines(ReadQueryFields()),
            QStringList({u"City/1"_s, u"Active/1"_s, u"Area/1"_s, u"Turnover/3"_s}));
}

TEST(QueryFields, PagesInUse_PageWithoutFields_IsNot) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  const std::array<bool, MaxPages> expected{true, false, true};
  EXPECT_EQ(PagesInUse(ReadQueryFields().Fields), expected);
}

TEST(QueryFields, PageCaptions_UntitledPage_IsItsNumberBehindABlank) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  const QueryFields read = ReadQueryFields();
  EXPECT_EQ(read.PageCaptions[0], u" 1"_s);
  EXPECT_EQ(read.PageCaptions[2], u"Figures"_s);
  EXPECT_EQ(read.PageCaptions[9], u" 10"_s);
}

TEST(QueryFields, PageCaptions_RowOfAPageThatCannotBe_IsPassedOver) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  file.AddRow(u"Location"_s, {{u"Name"_s, u"Nowhere"_s}, {u"Tab"_s, 11}, {u"Type"_s, 1}});
  file.AddRow(u"Location"_s, {{u"Name"_s, u"Later"_s}, {u"Tab"_s, 2}, {u"Type"_s, 1}});
  EXPECT_EQ(ReadQueryFields().PageCaptions[1], u"Later"_s);
}

TEST(QueryFields, PageCaptions_RowThatCannotBeRead_LeavesTheOthers) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  for (const db::Value& code : {db::Value(1), db::Value()})
    file.AddRow(u"Location"_s, {{u"Name"_s, u"Lost"_s}, {u"Tab"_s, db::Value()}, {u"Type"_s, code}});
  file.AddRow(u"Location"_s, {{u"Name"_s, u"Later"_s}, {u"Tab"_s, 2}, {u"Type"_s, 1}});
  const QueryFields read = ReadQueryFields();
  EXPECT_EQ(read.PageCaptions[1], u"Later"_s);
  EXPECT_EQ(read.PageCaptions[2], u"Figures"_s);
  EXPECT_EQ(Lines(read).size(), 3);
}

TEST(QueryFields, PageCaptions_MainFieldOnNoPage_StillStandsFirst) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  file.Database().Execute(u"UPDATE Location SET Tab = NULL WHERE Type = 0");
  file.Database().Execute(u"UPDATE Location SET Name = 'Head' WHERE Type = 1 AND Tab = 1");
  EXPECT_EQ(ReadQueryFields().PageCaptions[0], u"Head"_s);
}

TEST(QueryFields, Kind_OfEachField_IsThatOfTheFirstRowOfItsName) {
  const CardFile file = Design().Make();
  file.AddCard(1, u"Alpha"_s);
  const std::vector<QueryFields::Entry> fields = ReadQueryFields().Fields;
  EXPECT_EQ(fields.at(0).Kind, FieldKind::Text);
  EXPECT_EQ(fields.at(1).Kind, FieldKind::YesNo);
  EXPECT_EQ(fields.at(2).Kind, FieldKind::Number);
  file.Database().Execute(u"UPDATE Location SET Name = 'city' WHERE Type = 1 AND Tab = 3");
  EXPECT_EQ(ReadQueryFields().Fields.at(0).Kind, std::nullopt);
}

TEST(QueryFields, MainColumn_IsSpeltAsInTheCardsTable) {
  const CardFile file = Design().Make();
  file.Database().Execute(u"UPDATE Location SET Name = 'COMPANY' WHERE Type = 0");
  EXPECT_EQ(MainColumn(), u"Company"_s);
}

TEST(QueryFields, MainColumn_CatalogueNamesNoColumn_Fails) {
  const CardFile file = Design().Make();
  file.Database().Execute(u"UPDATE Location SET Name = 'Gone' WHERE Type = 0");
  EXPECT_EQ(ErrorNumberOf([] { std::ignore = MainColumn(); }), 3265);
}
