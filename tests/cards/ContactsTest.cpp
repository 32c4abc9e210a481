// SPDX-License-Identifier: MIT
#include "cards/Contacts.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class ContactsTest : public testing::Test {
 protected:
  static Values Active(Values values) {
    values.emplace_back(u"Activ"_s, true);
    return values;
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
};

}  // namespace

TEST_F(ContactsTest, ReadContacts_NoContact_IsEmpty) {
  file.AddContact(2, u"Ann"_s);
  const ContactPanel panel = ReadContacts(1);
  EXPECT_TRUE(panel.Entries.isEmpty());
  EXPECT_TRUE(panel.Phones.Numbers.isEmpty());
  EXPECT_TRUE(panel.Shown.isEmpty());
}

TEST_F(ContactsTest, ReadContacts_NoneActive_ShowsTheListAlone) {
  file.AddContact(1, u"Ann"_s, {{u"1"_s, u"Lee"_s}, {u"6"_s, u"Owner"_s}, {u"7"_s, u"555"_s}});
  file.AddContact(1, u"Bob"_s);
  const ContactPanel panel = ReadContacts(1);
  EXPECT_EQ(panel.Entries, QStringList({u"Ann   Lee   Owner"_s, u"Bob      "_s}));
  EXPECT_EQ(panel.Shown, QString());
  EXPECT_TRUE(panel.Phones.Numbers.isEmpty());
}

TEST_F(ContactsTest, ReadContacts_ActiveContact_IsShownWithItsNumbers) {
  file.AddContact(1, u"Ann"_s);
  file.AddContact(1, u"Bob"_s, Active({{u"7"_s, u"1"_s}, {u"8"_s, u" "_s}, {u"9"_s, u"3"_s}}));
  const ContactPanel panel = ReadContacts(1);
  EXPECT_EQ(panel.Shown, u"Bob      "_s);
  EXPECT_EQ(panel.Phones.Numbers, QStringList({u"1"_s, u"3"_s}));
  EXPECT_EQ(panel.Phones.Shown, u"1"_s);
}

TEST_F(ContactsTest, ReadContacts_ActiveWithCellularAlone_ShowsIt) {
  file.AddContact(1, u"Ann"_s, Active({{u"9"_s, u"0171"_s}}));
  const ContactPanel panel = ReadContacts(1);
  EXPECT_EQ(panel.Phones.Numbers, QStringList(u"0171"_s));
  EXPECT_EQ(panel.Phones.Shown, u"0171"_s);
}

TEST_F(ContactsTest, ReadContacts_SeveralActive_LastWins) {
  file.AddContact(1, u"Ann"_s, Active({{u"7"_s, u"1"_s}}));
  file.AddContact(1, u"Bob"_s, Active({{u"8"_s, u"2"_s}}));
  file.AddContact(1, u"Cyd"_s, {{u"7"_s, u"3"_s}});
  const ContactPanel panel = ReadContacts(1);
  EXPECT_EQ(panel.Entries.size(), 3);
  EXPECT_EQ(panel.Shown, u"Bob      "_s);
  EXPECT_EQ(panel.Phones.Numbers, QStringList(u"2"_s));
}

TEST_F(ContactsTest, ReadContacts_LastActiveWithoutNumbers_ShowsNone) {
  file.AddContact(1, u"Ann"_s, Active({{u"7"_s, u"1"_s}}));
  file.AddContact(1, u"Bob"_s, Active({}));
  EXPECT_TRUE(ReadContacts(1).Phones.Numbers.isEmpty());
  EXPECT_EQ(ReadContacts(1).Phones.Shown, QString());
}

TEST_F(ContactsTest, ReadContacts_NullInAContact_EndsTheListThere) {
  file.AddContact(1, u"Ann"_s, Active({{u"7"_s, u"1"_s}}));
  file.AddContact(1, u"Bob"_s, Active({{u"6"_s, db::Value::Null()}}));
  file.AddContact(1, u"Cyd"_s);
  const ContactPanel panel = ReadContacts(1);
  EXPECT_EQ(panel.Entries, QStringList(u"Ann      "_s));
  EXPECT_EQ(panel.Phones.Numbers, QStringList(u"1"_s));
}

TEST_F(ContactsTest, ReadContacts_NullNumber_IsNone) {
  file.AddContact(1, u"Ann"_s, Active({{u"7"_s, db::Value::Null()}, {u"8"_s, u"2"_s}}));
  EXPECT_EQ(ReadContacts(1).Phones.Numbers, QStringList(u"2"_s));
}

TEST_F(ContactsTest, ReadContacts_NoFile_IsEmpty) {
  Global().CardDb.reset();
  EXPECT_TRUE(ReadContacts(1).Entries.isEmpty());
  EXPECT_EQ(ReadContactPhones(1, u"Ann"_s), std::nullopt);
}

TEST_F(ContactsTest, ReadContactPhones_TwoOfTheSameFirstWord_GiveTheFirstRows) {
  file.AddContact(1, u"Ann Lee"_s, {{u"7"_s, u"1"_s}});
  file.AddContact(1, u"Ann Roe"_s, {{u"7"_s, u"2"_s}});
  for (const QString& entry : ReadContacts(1).Entries) {
    const auto phones = ReadContactPhones(1, entry);
    ASSERT_TRUE(phones);
    EXPECT_EQ(phones->Numbers, QStringList(u"1"_s));
    EXPECT_EQ(phones->Shown, u"1"_s);
  }
}

TEST_F(ContactsTest, ReadContactPhones_SecondContact_IsFound) {
  file.AddContact(1, u"Ann"_s, {{u"7"_s, u"1"_s}});
  file.AddContact(2, u"Bob"_s, {{u"7"_s, u"x"_s}});
  file.AddContact(1, u"Bob"_s, {{u"8"_s, u"2"_s}, {u"9"_s, u"3"_s}});
  const auto phones = ReadContactPhones(1, u"Bob      "_s);
  ASSERT_TRUE(phones);
  EXPECT_EQ(phones->Numbers, QStringList({u"2"_s, u"3"_s}));
  EXPECT_EQ(phones->Shown, u"2"_s);
}

TEST_F(ContactsTest, ReadContactPhones_NumberOfBlanks_IsShownButNotListed) {
  file.AddContact(1, u"Ann"_s, {{u"7"_s, u" "_s}, {u"8"_s, u"2"_s}});
  const auto phones = ReadContactPhones(1, u"Ann"_s);
  ASSERT_TRUE(phones);
  EXPECT_EQ(phones->Numbers, QStringList(u"2"_s));
  EXPECT_EQ(phones->Shown, u" "_s);
}

TEST_F(ContactsTest, ReadContactPhones_NoMatch_IsNothing) {
  file.AddContact(1, u"Ann"_s);
  EXPECT_EQ(ReadContactPhones(1, u"ann"_s), std::nullopt);
  EXPECT_EQ(ReadContactPhones(1, u"   Ann"_s), std::nullopt);
  EXPECT_EQ(ReadContactPhones(2, u"Ann"_s), std::nullopt);
}
