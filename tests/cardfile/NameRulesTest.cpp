// SPDX-License-Identifier: MIT
#include "cardfile/NameRules.h"

#include <gtest/gtest.h>

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
