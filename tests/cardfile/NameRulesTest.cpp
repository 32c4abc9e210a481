// SPDX-License-Identifier: MIT
#include "cardfile/NameRules.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(NameRulesTest, IsForbiddenChar_The25Characters_AreForbidden) {
  const QString all = u",.\\[]{}/<>~`:;()|!%^&*'?\""_s;
  ASSERT_EQ(all.size(), 25);
  EXPECT_EQ(ForbiddenCharacters(), all);
  for (const QChar character : all) EXPECT_TRUE(IsForbiddenChar(character)) << character.toLatin1();
}

TEST(NameRulesTest, IsForbiddenChar_OtherSigns_AreAllowed) {
  for (const QChar character : u" 09@#-_$+=azAZäß日"_s) EXPECT_FALSE(IsForbiddenChar(character));
}

TEST(NameRulesTest, CheckMainName_ForbiddenCharacter_ComesBeforeAllElse) {
  EXPECT_EQ(CheckMainName(u"a.b"_s, {u"a.b"_s}), NameCheck::ForbiddenCharacter);
}

TEST(NameRulesTest, CheckMainName_CardNumberColumn_IsRefusedExactly) {
  EXPECT_EQ(CheckMainName(u"Index@"_s, {}), NameCheck::CardNumberColumn);
  EXPECT_EQ(CheckMainName(u"index@"_s, {}), NameCheck::Fine);
  EXPECT_EQ(CheckMainName(u"Index@ "_s, {}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckMainName_NameOfAField_IsADuplicateWhateverItsCase) {
  EXPECT_EQ(CheckMainName(u"city"_s, {u"Street"_s, u"City"_s}), NameCheck::Duplicate);
  EXPECT_EQ(CheckMainName(u"Town"_s, {u"Street"_s, u"City"_s}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckMainName_EmptyText_IsNeverADuplicate) {
  EXPECT_EQ(CheckMainName(QString(), {QString()}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckFieldName_MainField_IsADuplicateInThatCaseAlone) {
  EXPECT_EQ(CheckFieldName(u"Name"_s, u"Name"_s, {}), NameCheck::Duplicate);
  EXPECT_EQ(CheckFieldName(u"name"_s, u"Name"_s, {}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckFieldName_OtherField_IsADuplicateInThatCaseAlone) {
  EXPECT_EQ(CheckFieldName(u"City"_s, u"Name"_s, {u"City"_s}), NameCheck::Duplicate);
  EXPECT_EQ(CheckFieldName(u"city"_s, u"Name"_s, {u"City"_s}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckFieldName_EmptyText_IsNeverADuplicate) {
  EXPECT_EQ(CheckFieldName(QString(), QString(), {QString()}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckFieldName_FirstChecks_AreThoseOfTheMainField) {
  EXPECT_EQ(CheckFieldName(u"Ann's"_s, u"Name"_s, {}), NameCheck::ForbiddenCharacter);
  EXPECT_EQ(CheckFieldName(u"Index@"_s, u"Name"_s, {}), NameCheck::CardNumberColumn);
  EXPECT_EQ(CheckFieldName(u"Index@ "_s, u"Name"_s, {}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckFieldName_Remarks_IsNoReservedWord) {
  EXPECT_EQ(CheckFieldName(u"Remarks"_s, u"Name"_s, {}), NameCheck::Fine);
}

TEST(NameRulesTest, CheckNewFieldName_LooksAtCharactersAlone) {
  EXPECT_EQ(CheckNewFieldName(u"What?"_s), NameCheck::ForbiddenCharacter);
  EXPECT_EQ(CheckNewFieldName(u"Index@"_s), NameCheck::Fine);
}

TEST(NameRulesTest, CheckNewColumn_ColumnOfTheCards_IsADuplicateInThatCaseAlone) {
  const QStringList columns{u"Index@"_s, u"Name"_s, u"City"_s, u"Remarks"_s};
  EXPECT_EQ(CheckNewColumn(u"Remarks"_s, columns), NameCheck::Duplicate);
  EXPECT_EQ(CheckNewColumn(u"Index@"_s, columns), NameCheck::Duplicate);
  EXPECT_EQ(CheckNewColumn(u"city"_s, columns), NameCheck::Fine);
}

namespace {

/// A file with the fields City (text) and Due (date), and what a deleted date field Old has left.
TakenNames NamesOfAFile() {
  return {.Columns = {u"Index@"_s, u"Name"_s, u"City"_s, u"Due"_s, u"Remarks"_s},
          .Tables = {u"Agent"_s, u"CityT"_s, u"MainData"_s},
          .ReminderColumns = {u"Index"_s, u"Due"_s, u"DueAgents"_s, u"Old"_s, u"OldAgents"_s}};
}

}  // namespace

TEST(NameRulesTest, FaultOf_FreeNames_IsNone) {
  for (const FieldKind kind : {FieldKind::Text, FieldKind::Number, FieldKind::YesNo, FieldKind::Date})
    EXPECT_EQ(FaultOf({.Name = u"Town"_s, .Kind = kind}, NamesOfAFile()), std::nullopt);
}

TEST(NameRulesTest, FaultOf_ColumnInAnyCase_TellsWhose) {
  EXPECT_EQ(FaultOf({.Name = u"city"_s}, NamesOfAFile()), NameFault::ColumnTaken);
  EXPECT_EQ(FaultOf({.Name = u"remarks"_s}, NamesOfAFile()), NameFault::ProgramsColumn);
  EXPECT_EQ(FaultOf({.Name = u"Index@"_s}, NamesOfAFile()), NameFault::ProgramsColumn);
}

TEST(NameRulesTest, FaultOf_ListThatWouldBeAnotherTable_IsOneOfTextsAlone) {
  EXPECT_EQ(FaultOf({.Name = u"Agen"_s, .Kind = FieldKind::Text}, NamesOfAFile()), NameFault::TableTaken);
  EXPECT_EQ(FaultOf({.Name = u"Agen"_s, .Kind = FieldKind::Number}, NamesOfAFile()), std::nullopt);
}

TEST(NameRulesTest, FaultOf_ReminderThatWouldBeAnothers_IsOneOfDatesAlone) {
  for (const QString& name : {u"Index"_s, u"DueAgents"_s, u"oldagents"_s}) {
    EXPECT_EQ(FaultOf({.Name = name, .Kind = FieldKind::Date}, NamesOfAFile()), NameFault::ReminderTaken);
    EXPECT_EQ(FaultOf({.Name = name, .Kind = FieldKind::Text}, NamesOfAFile()), std::nullopt);
  }
}

TEST(NameRulesTest, FaultOf_ReminderOfADeletedFieldOfThatName_IsNone) {
  EXPECT_EQ(FaultOf({.Name = u"Old"_s, .Kind = FieldKind::Date}, NamesOfAFile()), std::nullopt);
}

TEST(NameRulesTest, FaultOf_Length_LeavesRoomForTheSuffix) {
  for (const auto& [kind, longest] : {std::pair{FieldKind::Text, 63}, std::pair{FieldKind::Number, 64},
                                      std::pair{FieldKind::YesNo, 64}, std::pair{FieldKind::Date, 58}}) {
    EXPECT_EQ(LongestName(kind), longest);
    EXPECT_EQ(FaultOf({.Name = QString(longest, u'x'), .Kind = kind}, NamesOfAFile()), std::nullopt);
    EXPECT_EQ(FaultOf({.Name = QString(longest + 1, u'x'), .Kind = kind}, NamesOfAFile()),
              NameFault::TooLong);
  }
}
