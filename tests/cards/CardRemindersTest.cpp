// SPDX-License-Identifier: MIT
#include "cards/Reminders.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class CardRemindersTest : public testing::Test {
 protected:
  CardRemindersTest() {
    SaveReminder(u"Due"_s, 7, u"12/31/2024"_s, u"Ann,Bob"_s);
    SaveReminder(u"Born"_s, 8, u"1/2/2025"_s, u"Eve"_s);
  }

  CardFile file = ACardFile().With(DateField(u"Due"_s)).With(DateField(u"Born"_s)).Make();
};

}  // namespace

TEST_F(CardRemindersTest, Has_EachField_TellsWhatTheFileTells) {
  for (const std::int32_t card : {7, 8, 9}) {
    CardReminders reminders(card);
    for (const QString& field : {u"Due"_s, u"Born"_s}) {
      EXPECT_EQ(reminders.Has(field), HasReminder(field, card));
      EXPECT_EQ(reminders.Agents(field), ReminderAgents(field, card));
    }
  }
}

TEST_F(CardRemindersTest, Has_FieldWithoutColumns_FailsWithAndWithoutARow) {
  for (const std::int32_t card : {7, 9}) {
    CardReminders reminders(card);
    EXPECT_NE(ErrorNumberOf([&] { std::ignore = reminders.Has(u"Gone"_s); }), 0);
  }
}

TEST_F(CardRemindersTest, Has_AgentsColumnGone_Fails) {
  file.Database().DeleteField(u"TableDatesRemainder", u"DueAgents");
  CardReminders reminders(7);
  EXPECT_NE(ErrorNumberOf([&] { std::ignore = reminders.Has(u"Due"_s); }), 0);
  EXPECT_FALSE(reminders.Has(u"Born"_s));
}
