// SPDX-License-Identifier: MIT
#include "tests/cards/CardOfEveryKind.h"

namespace velmora::test {
namespace {

/// What the two card screens do alike.
class CardFormTest : public CardOfEveryKindTest, public testing::WithParamInterface<CardScreen> {
 protected:
  [[nodiscard]] static bool IsViewer() { return GetParam() == CardScreen::Viewer; }
  CardForm& Open() { return IsViewer() ? static_cast<CardForm&>(View()) : Edit(); }
};

INSTANTIATE_TEST_SUITE_P(, CardFormTest, testing::Values(CardScreen::Viewer, CardScreen::Editor),
                         [](const testing::TestParamInfo<CardScreen>& screen) {
                           return std::string(screen.param == CardScreen::Viewer ? "ShowTable" : "EditTable");
                         });

TEST_P(CardFormTest, PageButton_Clicked_ShowsItsPageAndTurnsRed) {
  const CardForm& form = Open();
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Red);
  PressPage(form, 2);
  EXPECT_FALSE(form.NameText[0].isVisible());
  EXPECT_FALSE(form.NameLab[0].isVisible());
  EXPECT_TRUE(form.NameText[4].isVisible());
  EXPECT_TRUE(form.NameLab[4].isVisible());
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Ink);
  EXPECT_EQ(form.Tab[1].ForeColor(), ui::Role::Red);
}

TEST_P(CardFormTest, PageKeys_InAField_GoToTheNextPageAndItsFirstField) {
  const CardForm& form = Open();
  form.NameText[0].SetFocus();
  QTest::keyClick(&form.NameText[0], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[4].isVisible());
  EXPECT_TRUE(form.NameText[4].hasFocus());
  QTest::keyClick(&form.NameText[4], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[4].isVisible());
  QTest::keyClick(&form.NameText[4], Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_P(CardFormTest, LeaveText_Apostrophe_IsRefusedWithTheTextSelected) {
  const CardForm& form = Open();
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
    Type(form.NameText[0], u"L'Aquila"_s);
    const MessageAnswers answers({Ok});
    QTest::keyClick(&form.NameText[0], key);
    EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
    EXPECT_TRUE(form.NameText[0].hasFocus());
    EXPECT_EQ(form.NameText[0].selectedText(), u"L'Aquila"_s);
  }
}

TEST_P(CardFormTest, LeaveName_Apostrophe_KeepsTheFocus) {
  const CardForm& form = Open();
  Type(*form.NameRecord, u"O'Hara"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_EQ(form.NameRecord->selectedText(), u"O'Hara"_s);
}

TEST_P(CardFormTest, LeaveName_NameOfAnotherCard_IsClearedAndRefused) {
  const CardForm& form = Open();
  Type(*form.NameRecord, u"card 5"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text.trimmed(), u"This name already exists!"_s);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_TRUE(form.NameRecord->hasFocus());
}

TEST_P(CardFormTest, LeaveName_SimilarNameAndCancel_LetsGo) {
  const CardForm& form = Open();
  file->AddCard(7, u"Blacksmith Inc"_s);
  Type(*form.NameRecord, u"Smith Ltd"_s);
  const MessageAnswers answers({Cancel});
  PressTab(*form.NameRecord);
  const ui::Message asked = answers.Asked().value(0);
  EXPECT_EQ(asked.Title, IsViewer() ? u"Check name of card"_s : u"Check names"_s);
  EXPECT_EQ(asked.Text,
            IsViewer()
                ? u"This name already exists in the file \nPress \"Enter\" to view a list of similar names."_s
                : u"This name already exists in the file\nClick \"OK\" to view a list of similar names."_s);
  EXPECT_EQ(asked.Buttons, ui::MsgButtons::OkCancel);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  EXPECT_EQ(form.NameRecord->Text(), u"Smith Ltd"_s);
}

TEST_P(CardFormTest, ChangeMarks_EachControlOfAField_SetsThem) {
  const CardForm& form = Open();
  const QList<std::function<void()>> edits{
      [&] { QTest::keyClicks(form.NameRecord, u"x"_s); },
      [&] { QTest::keyClicks(&form.NameText[0], u"x"_s); },
      [&] { QTest::keyClicks(&form.NameNumber[1], u"1"_s); },
      [&] { Click(form.NameCheck[2]); },
      [&] { QTest::keyClick(&form.NameCheck[2], Qt::Key_Space); },
      [&] { QTest::keyClicks(form.NameDate[3].DateVal(), u"1"_s); },
      [&] { form.NameText[0].Write(form.NameText[0].Text()); },
      [&] { form.NameDate[3].SetText(form.NameDate[3].Text()); },
  };
  for (qsizetype i = 0; i < edits.size(); ++i) {
    Global().CardChanged = False;
    edits[i]();
    EXPECT_EQ(Global().CardChanged, True) << i;
  }
}

TEST_P(CardFormTest, DoubleClickOnText_OpensItsValueList) {
  const CardForm& form = Open();
  for (const int field : {0, 4}) {
    if (field == 4) PressPage(form, 2);
    QTest::mouseDClick(&form.NameText[field], Qt::LeftButton);
    EXPECT_EQ(Global().CurFieldIndex, field);
    EXPECT_EQ(frame->LastCall(), IsViewer() ? u"ShowValueList Viewer"_s : u"ShowValueList Editor"_s);
  }
}

TEST_P(CardFormTest, ValueListKeys_OnText_OpenItsValueList) {
  const CardForm& form = Open();
  QTest::keyClick(&form.NameText[0], Qt::Key_F4);
  QTest::keyClick(&form.NameText[0], Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(frame->Calls.count(IsViewer() ? u"ShowValueList Viewer"_s : u"ShowValueList Editor"_s), 2);
  EXPECT_EQ(Global().CurFieldIndex, 0);
}

TEST_P(CardFormTest, Help_Clicked_OpensTopic118) {
  Press(Open(), u"CmdHelp"_s);
  EXPECT_EQ(frame->LastCall(), u"ShowHelpTopic 118"_s);
}

}  // namespace
}  // namespace velmora::test
