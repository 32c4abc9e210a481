// SPDX-License-Identifier: MIT
#include "cardfile/FieldChanges.h"
#include "cards/Reminders.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class RemindersTest : public testing::Test {
 protected:
  [[nodiscard]] QStringList Rows() const { return file.Rows(u"TableDatesRemainder"_s); }

  CardFile file = ACardFile().With(DateField(u"Due"_s)).With(DateField(u"Birth day"_s)).Make();
};

}  // namespace

TEST_F(RemindersTest, SaveReminder_FirstOfACard_AddsItsRow) {
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann,Bob"_s);
  EXPECT_EQ(Rows(), QStringList(u"7|12/31/2024|Ann,Bob|Null|Null"_s));
  EXPECT_TRUE(HasReminder(u"Due"_s, 7));
  EXPECT_EQ(ReminderAgents(u"Due"_s, 7), u"Ann,Bob"_s);
}

TEST_F(RemindersTest, SaveReminder_TwoDateFields_ShareOneRow) {
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann"_s);
  SaveReminder(u"Birth day"_s, 7, u"2025-01-02"_s, QString());
  EXPECT_EQ(Rows(), QStringList(u"7|12/31/2024|Ann|1/2/2025|"_s));
}

TEST_F(RemindersTest, SaveReminder_Again_Replaces) {
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann"_s);
  SaveReminder(u"Due"_s, 8, u"12/31/2024"_s, u"Ann"_s);
  SaveReminder(u"Due"_s, 7, u"1/1/2025"_s, u"Bob"_s);
  EXPECT_EQ(Rows(), QStringList({u"7|1/1/2025|Bob|Null|Null"_s, u"8|12/31/2024|Ann|Null|Null"_s}));
}

TEST_F(RemindersTest, SaveReminder_TextThatIsNoDate_FailsAndStoresNothing) {
  EXPECT_EQ(ErrorNumberOf([] { SaveReminder(u"Due"_s, 7, u"tomorrow"_s, u"Ann"_s); }), 3421);
  EXPECT_EQ(Rows(), QStringList());
}

TEST_F(RemindersTest, HasReminder_NoRowOrNoDate_IsFalse) {
  EXPECT_FALSE(HasReminder(u"Due"_s, 7));
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann"_s);
  EXPECT_FALSE(HasReminder(u"Birth day"_s, 7));
  EXPECT_FALSE(HasReminder(u"Due"_s, 8));
}

TEST_F(RemindersTest, HasReminder_FieldWithoutColumns_Fails) {
  EXPECT_EQ(ErrorNumberOf([] { std::ignore = HasReminder(u"Gone"_s, 7); }), 3061);
}

TEST_F(RemindersTest, ReminderAgents_NoRow_IsEmpty) { EXPECT_EQ(ReminderAgents(u"Due"_s, 7), QString()); }

TEST_F(RemindersTest, ClearReminder_LeavesTheRowAndTheOtherField) {
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann"_s);
  SaveReminder(u"Birth day"_s, 7, u"1/2/2025"_s, u"Bob"_s);
  ClearReminder(u"Due"_s, 7);
  EXPECT_EQ(Rows(), QStringList(u"7|Null|Null|1/2/2025|Bob"_s));
  EXPECT_FALSE(HasReminder(u"Due"_s, 7));
}

TEST_F(RemindersTest, ClearReminder_NoRow_AddsNone) {
  ClearReminder(u"Due"_s, 7);
  EXPECT_EQ(Rows(), QStringList());
}

TEST_F(RemindersTest, EnsureTables_OldFile_GetsThem) {
  file.Database().DeleteTableDef(u"TableDatesRemainder");
  file.Database().DeleteTableDef(u"SupportRemainder");
  EnsureReminderTable();
  EnsureSupportTable();
  const db::TableDef reminders = file.Database().TableDefOf(u"TableDatesRemainder");
  ASSERT_EQ(reminders.Fields.size(), 1U);
  EXPECT_EQ(reminders.Fields[0].Name, u"Index"_s);
  EXPECT_EQ(reminders.Fields[0].Type, db::FieldType::Long);
  EXPECT_EQ(file.Database().TableDefOf(u"SupportRemainder").Fields[0].Name, u"Name"_s);
}

TEST_F(RemindersTest, EnsureTables_TheyExist_KeepTheirRows) {
  SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann"_s);
  EnsureReminderTable();
  EnsureSupportTable();
  EXPECT_EQ(Rows().size(), 1);
  EXPECT_EQ(file.Rows(u"SupportRemainder"_s).size(), 2);
}

TEST(AgentsTest, SplitAgents_Commas_PartTheNames) {
  EXPECT_EQ(SplitAgents(u"Ann, Bob,Cyd"_s), QStringList({u"Ann"_s, u" Bob"_s, u"Cyd"_s}));
  EXPECT_EQ(SplitAgents(u"Ann,"_s), QStringList({u"Ann"_s, QString()}));
  EXPECT_EQ(SplitAgents(u"Ann"_s), QStringList(u"Ann"_s));
}

TEST(AgentsTest, SplitAgents_BlankText_HasNone) {
  EXPECT_EQ(SplitAgents(QString()), QStringList());
  EXPECT_EQ(SplitAgents(u"  "_s), QStringList());
}

TEST(AgentsTest, JoinAgents_EachPass_TurnsTheListRound) {
  EXPECT_EQ(JoinAgents({u"Ann"_s, u"Bob"_s, u"Cyd"_s}), u"Cyd,Bob,Ann"_s);
  EXPECT_EQ(JoinAgents(SplitAgents(u"Cyd,Bob,Ann"_s)), u"Ann,Bob,Cyd"_s);
  EXPECT_EQ(JoinAgents({}), QString());
}
