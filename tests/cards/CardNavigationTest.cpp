// SPDX-License-Identifier: MIT
#include "cards/CardNavigation.h"
#include "cards/ShowContacts.h"
#include "forms/Screen.h"
#include "tests/cards/CardScreens.h"

using namespace velmora;
using namespace velmora::test;

namespace {

class CardNavigationTest : public CardScreensTest {
 protected:
  CardNavigationTest() { Make(ACardFile().With(TextField(u"City"_s)).With(DateField(u"Due"_s))); }

  void AddCards(std::initializer_list<std::int32_t> numbers) const {
    for (const std::int32_t number : numbers) file->AddCard(number, u"Card %1"_s.arg(number));
  }
  [[nodiscard]] QString Strip() const {
    return frame->NumberLab().Caption() + u'|' + frame->ClientLab().Caption();
  }
  static QStringList Entries(const ui::ComboBox& list) {
    QStringList entries;
    for (int i = 0; i < list.ListCount(); ++i) entries += list.List(i);
    return entries;
  }
};

class OpenSearch final : public ui::Form {
 public:
  OpenSearch() : Form(u"fQSearch"_s, u"Search"_s) {}
};

}  // namespace

TEST_F(CardNavigationTest, GoToCard_GapAbove_GoesToTheNextCard) {
  AddCards({1, 2, 5});
  Global().CurCard = 2;
  GoToCard(3);
  EXPECT_EQ(Global().CurCard, 5);
  EXPECT_EQ(Strip(), u"5|Card 5"_s);
}

TEST_F(CardNavigationTest, GoToCard_AboveTheHighest_StaysOnTheHighest) {
  AddCards({5, 1, 2});
  Global().CurCard = 5;
  GoToCard(6);
  EXPECT_EQ(Global().CurCard, 5);
}

TEST_F(CardNavigationTest, GoToCard_BelowTheLowest_GoesToTheLowest) {
  AddCards({5, 2});
  Global().CurCard = 5;
  GoToCard(1);
  EXPECT_EQ(Global().CurCard, 2);
}

TEST_F(CardNavigationTest, GoToCard_LargeNumber_IsGrouped) {
  AddCards({1234567});
  GoToCard(1234567);
  EXPECT_EQ(Strip(), u"1,234,567|Card 1234567"_s);
}

TEST_F(CardNavigationTest, GoToCard_EmptyTable_SaysThatTheCardDoesNotExist) {
  frame->ClientLab().SetCaption(u"before"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  GoToCard(3);
  EXPECT_EQ(answers.Asked().value(0).Text, u"The card does not exist"_s);
  EXPECT_EQ(frame->ClientLab().Caption(), u"before"_s);
  EXPECT_EQ(Global().CurCard, 0);
}

TEST_F(CardNavigationTest, GoToCard_CurrentCardGone_SaysThatItDoesNotExist) {
  AddCards({1, 2});
  Global().CurCard = 3;
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  GoToCard(3);
  EXPECT_EQ(Global().CurCard, 3);
}

TEST_F(CardNavigationTest, GoToCard_CardWithoutAName_MovesAndLeavesTheLabels) {
  AddCards({1});
  file->AddRow(u"MainData"_s, {{u"Index@"_s, 2}});
  GoToCard(1);
  GoToCard(2);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(Strip(), u"1|Card 1"_s);
}

TEST_F(CardNavigationTest, GoToCard_OtherScreens_AreClosedFirst) {
  AddCards({1, 2});
  (new OpenSearch)->Show();
  GoToCard(2);
  EXPECT_EQ(frame->Calls, QStringList(u"UnloadOtherForms"_s));
  EXPECT_EQ(ui::Forms().size(), 1);
}

TEST_F(CardNavigationTest, GoToCard_SearchInFront_StaysOpen) {
  AddCards({1, 2});
  for (const int code : {7, 8, 9, 10, 11}) {
    frame->ActiveCodeForTest = code;
    GoToCard(2);
  }
  EXPECT_TRUE(frame->Calls.isEmpty());
  for (const int code : {0, 2, 6, 12}) {
    frame->ActiveCodeForTest = code;
    GoToCard(2);
  }
  EXPECT_EQ(frame->Calls.size(), 4);
}

TEST_F(CardNavigationTest, GoToCard_UnsavedChangesStay_StopsTheMove) {
  AddCards({1, 2});
  Global().CurCard = 1;
  Global().CardChanged = True;
  GoToCard(2);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(CardNavigationTest, GoToCard_NoFile_DoesNothing) {
  Global().CardDb.reset();
  GoToCard(2);
  EXPECT_EQ(Global().CurCard, 0);
}

TEST_F(CardNavigationTest, DeleteCurrentCard_Asked_QuotesTheCard) {
  AddCards({1});
  GoToCard(1);
  const MessageAnswers answers({ui::MsgAnswer::Cancel});
  DeleteCurrentCard([] { ADD_FAILURE() << "a step without a deletion"; });
  const ui::Message& asked = answers.Asked().value(0);
  EXPECT_EQ(asked.Text, u"Are you sure you want to delete this card?\nCard Name :Card 1"_s);
  EXPECT_TRUE(asked.BareTitle);
  EXPECT_EQ(asked.Buttons, ui::MsgButtons::OkCancel);
  EXPECT_EQ(Column(1, u"Name"_s), u"Card 1"_s);
}

TEST_F(CardNavigationTest, DeleteCurrentCard_Confirmed_DeletesTheCardAndWhatBelongsToIt) {
  AddCards({1, 2});
  file->AddContact(1, u"Ann"_s);
  file->AddContact(2, u"Bob"_s);
  file->AddRow(u"Telefon"_s, {{u"Index"_s, 1}});
  file->AddRow(u"PriceList"_s, {{u"Index"_s, 1}});
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-01"_s}});
  GoToCard(1);
  frame->txtSeek().SetText(u"1"_s);
  frame->Calls.clear();
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  QStringList steps;
  frame->OnCall = [&](const QString& call) { steps += call; };
  DeleteCurrentCard([&] { steps += u"step"_s; });
  EXPECT_EQ(Column(1, u"Name"_s), u"no card"_s);
  EXPECT_EQ(Column(2, u"Name"_s), u"Card 2"_s);
  EXPECT_EQ(file->Rows(u"Select Name From Agent"_s), QStringList(u"Bob"_s));
  EXPECT_TRUE(file->Rows(u"Telefon"_s).isEmpty());
  EXPECT_TRUE(file->Rows(u"PriceList"_s).isEmpty());
  EXPECT_EQ(Reminders().size(), 1);
  EXPECT_EQ(frame->txtSeek().Text(), QString());
  EXPECT_EQ(steps, QStringList({u"ShowCard"_s, u"step"_s}));
}

TEST_F(CardNavigationTest, DeleteCurrentCard_OthersRemain_StepsOnFromTheFirstStoredCard) {
  Connect();
  AddCards({7, 3, 5, 9});
  OpenViewer(3);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  std::int32_t before = 0;
  DeleteCurrentCard([&] {
    before = Global().CurCard;
    OpenScreen<ShowTable>()->ShowIndex(Global().CurCard + 1);
  });
  EXPECT_EQ(before, 7);
  EXPECT_EQ(Global().CurCard, 9);
}

TEST_F(CardNavigationTest, DeleteCurrentCard_LastCard_ClosesEverythingAndEmptiesTheLabels) {
  Connect();
  AddCards({4});
  OpenViewer(4);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  DeleteCurrentCard([] { ADD_FAILURE() << "a step without cards"; });
  EXPECT_EQ(Global().CurCard, 0);
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_EQ(Strip(), u"|"_s);
}

TEST_F(CardNavigationTest, ShowContacts_None_EmptiesBothLists) {
  frame->AgentLab().AddItem(u"old"_s);
  frame->TelephonList().SetText(u"old"_s);
  AddCards({1});
  GoToCard(1);
  EXPECT_EQ(frame->AgentLab().ListCount(), 0);
  EXPECT_EQ(frame->AgentLab().Text(), QString());
  EXPECT_EQ(frame->TelephonList().ListCount(), 0);
  EXPECT_EQ(frame->TelephonList().Text(), QString());
}

TEST_F(CardNavigationTest, ShowContacts_TableCannotBeOpened_EmptiesBothLists) {
  AddCards({1, 2});
  file->AddContact(1, u"Ann"_s, {{u"7"_s, u"111"_s}, {u"Activ"_s, true}});
  GoToCard(1);
  ASSERT_EQ(frame->AgentLab().ListCount(), 1);
  ASSERT_EQ(frame->TelephonList().Text(), u"111"_s);
  file->Database().DeleteTableDef(u"Agent");
  GoToCard(2);
  EXPECT_EQ(frame->AgentLab().ListCount(), 0);
  EXPECT_EQ(frame->AgentLab().Text(), QString());
  EXPECT_EQ(frame->TelephonList().ListCount(), 0);
  EXPECT_EQ(frame->TelephonList().Text(), QString());
}

TEST_F(CardNavigationTest, ShowContacts_ActiveContact_ShowsItWithItsNumbers) {
  AddCards({1});
  file->AddContact(1, u"Bob"_s, {{u"7"_s, u"111"_s}});
  file->AddContact(1, u"Ann"_s,
                   {{u"1"_s, u"Lee"_s}, {u"6"_s, u"Boss"_s}, {u"9"_s, u"333"_s}, {u"Activ"_s, true}});
  GoToCard(1);
  EXPECT_EQ(Entries(frame->AgentLab()), QStringList({u"Bob      "_s, u"Ann   Lee   Boss"_s}));
  EXPECT_EQ(frame->AgentLab().Text(), u"Ann   Lee   Boss"_s);
  EXPECT_EQ(Entries(frame->TelephonList()), QStringList(u"333"_s));
  EXPECT_EQ(frame->TelephonList().Text(), u"333"_s);
}

TEST_F(CardNavigationTest, ShowContacts_NoActiveContact_ShowsAnEmptyBoxOverTheList) {
  AddCards({1});
  file->AddContact(1, u"Bob"_s, {{u"7"_s, u"111"_s}});
  GoToCard(1);
  EXPECT_EQ(frame->AgentLab().ListCount(), 1);
  EXPECT_EQ(frame->AgentLab().Text(), QString());
  EXPECT_EQ(frame->TelephonList().ListCount(), 0);
}

TEST_F(CardNavigationTest, ShowContacts_NullInAColumn_LeavesTheListPartlyFilled) {
  AddCards({1});
  file->AddContact(1, u"Bob"_s);
  file->AddRow(u"Agent"_s, {{u"Index"_s, 1}, {u"Name"_s, u"Cut"_s}});
  file->AddContact(1, u"Eve"_s);
  GoToCard(1);
  EXPECT_EQ(frame->AgentLab().ListCount(), 1);
}

TEST_F(CardNavigationTest, ShowContactPhones_SameFirstWord_ShowsTheFirstRow) {
  AddCards({1});
  file->AddContact(1, u"Ann Lee"_s, {{u"7"_s, u"111"_s}});
  file->AddContact(1, u"Ann Roe"_s, {{u"7"_s, u"222"_s}});
  GoToCard(1);
  frame->AgentLab().SetListIndex(1);
  ShowContactPhones(frame->AgentLab().Text());
  EXPECT_EQ(frame->TelephonList().Text(), u"111"_s);
}

TEST_F(CardNavigationTest, ShowContactPhones_NobodyFound_LeavesTheList) {
  AddCards({1});
  file->AddContact(1, u"Ann"_s, {{u"7"_s, u"111"_s}, {u"Activ"_s, true}});
  GoToCard(1);
  frame->AgentLab().SetText(u"Nobody"_s);
  ShowContactPhones(frame->AgentLab().Text());
  EXPECT_EQ(frame->TelephonList().Text(), u"111"_s);
}
