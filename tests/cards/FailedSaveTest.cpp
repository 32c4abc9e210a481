// SPDX-License-Identifier: MIT
// What becomes of a card that was to be saved and is not stored.
#include "cards/CardNavigation.h"
#include "forms/Notice.h"
#include "forms/Waiting.h"
#include "tests/cards/CardScreens.h"
#include "tests/engine/AsNobody.h"
#include "tests/engine/FailingWrites.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/Screens.h"

#include <QFileInfo>

#include <sys/stat.h>

using namespace velmora;
using namespace velmora::test;
using enum velmora::ui::MsgAnswer;

namespace {

const QString Question = QStringLiteral("Do you wish to save changes?");

class FailedSaveTest : public CardScreensTest {
 protected:
  /// Cards 1 to 3. Fields: 0 City (text), 1 Due (date); on page 2: 2 Street (text).
  FailedSaveTest() {
    Make(ACardFile().With(TextField(u"City"_s)).With(DateField(u"Due"_s)).With(TextField(u"Street"_s), 2));
    Connect();
    for (const std::int32_t number : {1, 2, 3}) file->AddCard(number, u"Card %1"_s.arg(number));
    Global().CurCard = 1;
  }

  /// The viewer on card 1, whose city is Rome by now.
  ShowTable& ChangedViewer() {
    ShowTable& form = OpenViewer(1);
    Type(form.NameText[0], u"Rome"_s);
    return form;
  }
  /// The editor over card 1, on a new card called Zoe.
  EditTable& ChangedEditor() {
    EditTable& form = OpenEditor();
    Type(*form.NameRecord, u"Zoe"_s);
    PressTab(*form.NameRecord);
    return form;
  }
  static ui::TextBox& Number(const EditTable& form) { return Box(form, u"IndexText"_s); }
  /// Opens the file anew, as what was prepared for its connections asks.
  void Reopen() const {
    Global().CardDb->Close();
    Global().CardDb = Global().DBEngine().OpenDatabase(file->Path());
  }
  /// The screen stands as it did, with the change, the marks and the focus in that control.
  static void ExpectKept(const ui::Form& form, const QWidget& atFault) {
    EXPECT_FALSE(form.IsClosing());
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(Global().CardChanged, True);
    EXPECT_TRUE(atFault.hasFocus()) << "the focus is not at " << atFault.objectName().toStdString();
  }
  [[nodiscard]] int Cards() const { return static_cast<int>(file->Rows(u"MainData"_s).size()); }
};

}  // namespace

TEST_F(FailedSaveTest, Step_YesAndNameBlank_StaysOnTheCard) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->SetText(u" "_s);
  const MessageAnswers answers({Yes, Ok});
  form.ShowIndex(2);
  EXPECT_EQ(answers.Asked().value(1).Text, u"Enter name of card."_s);
  EXPECT_EQ(ui::NoticeInView(), QString());
  ExpectKept(form, *form.NameRecord);
  EXPECT_EQ(Global().CurCard, 1);
  EXPECT_EQ(form.NameText[0].Text(), u"Rome"_s);
  EXPECT_EQ(Column(1, u"City"_s), u"Null"_s);
}

TEST_F(FailedSaveTest, Step_YesAndNameTaken_StaysOnTheCard) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->SetText(u"Card 3"_s);
  const MessageAnswers answers({Yes, Ok});
  form.ShowIndex(2);
  EXPECT_EQ(answers.Asked().value(1).Text, u"This name already exists!"_s);
  ExpectKept(form, *form.NameRecord);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(FailedSaveTest, Step_YesAndTextTooLong_GoesToItsPageAndBox) {
  ShowTable& form = ChangedViewer();
  form.NameText[2].Write(QString(201, u'x'));
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_EQ(ui::NoticeInView().toStdString(),
            "The card was not saved. Street: The text has 201 characters; there is room for 200.");
  EXPECT_TRUE(form.NameText[2].isVisible());
  EXPECT_EQ(form.Tab[1].ForeColor(), ui::Role::Red);
  ExpectKept(form, form.NameText[2]);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(FailedSaveTest, Step_YesAndNoDateUnderTheOpenComment_ShrinksTheCommentAndGoesToTheDate) {
  ShowTable& form = ChangedViewer();
  TypeDate(form.NameDate[1], u"2/30/2024"_s);
  Press(form, u"cmdEdUp"_s);
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_EQ(form.DescrText->Height(), 670);
  ExpectKept(form, *form.NameDate[1].DateVal());
}

TEST_F(FailedSaveTest, Step_YesAndFocusInTheName_RunsNoCheckOfTheNameOnTheWayToTheFault) {
  file->AddCard(7, u"Joanna"_s);
  ShowTable& form = ChangedViewer();
  form.NameText[0].Write(QString(201, u'x'));
  Type(*form.NameRecord, u"Ann"_s);
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  ExpectKept(form, form.NameText[0]);
}

TEST_F(FailedSaveTest, Step_YesAndDiskFails_StaysAndCanBeSavedLater) {
  const FailingWrites writes;
  Reopen();
  ShowTable& form = ChangedViewer();
  {
    const MessageAnswers answers({Yes});
    FailingWrites::FailNextCommit();
    form.ShowIndex(2);
    ExpectKept(form, form.NameText[0]);
    EXPECT_EQ(Global().CurCard, 1);
    EXPECT_TRUE(ui::NoticeInView().startsWith(u"The card was not saved. "_s));
  }
  FailingWrites::Stop();
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
}

TEST_F(FailedSaveTest, Step_YesAndFileLockedByAnotherProgram_StaysOnTheCard) {
  ShowTable& form = ChangedViewer();
  const PlainSqlite other(file->Path());
  other.Run(u"BEGIN IMMEDIATE");
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_TRUE(ui::NoticeInView().startsWith(u"The card was not saved. Another program is using the file"_s))
      << ui::NoticeInView().toStdString();
  ExpectKept(form, form.NameText[0]);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(FailedSaveTest, Step_YesAndFileReadOnly_StaysOnTheCardUntilNo) {
  const QByteArray path = QFile::encodeName(file->Path());
  ASSERT_EQ(::chmod(path.constData(), 0444), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(QFileInfo(file->Path()).path()).constData(), 0755), 0);
  {
    const AsNobody nobody;
    Reopen();
  }
  ShowTable& form = ChangedViewer();
  {
    const MessageAnswers answers({Yes});
    form.ShowIndex(2);
    ExpectKept(form, form.NameText[0]);
    EXPECT_EQ(Global().CurCard, 1);
    EXPECT_TRUE(ui::NoticeInView().startsWith(u"The card was not saved. The file cannot be written"_s))
        << ui::NoticeInView().toStdString();
  }
  const MessageAnswers answers({No});
  form.ShowIndex(2);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(FailedSaveTest, Step_YesAndCardDeletedByAnotherProgram_StaysUntilNo) {
  ShowTable& form = ChangedViewer();
  file->Database().Execute(u"Delete * from MainData Where [Index@] = 1");
  {
    const MessageAnswers answers({Yes});
    form.ShowIndex(2);
    ExpectKept(form, form.NameText[0]);
    EXPECT_EQ(ui::NoticeInView(), u"The card was not saved: it is no longer in the file."_s);
  }
  const MessageAnswers answers({No});
  form.ShowIndex(2);
  EXPECT_EQ(Global().CurCard, 2);
}

TEST_F(FailedSaveTest, CloseViewer_YesAndSaveStops_StaysOpenAndAsksAgain) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->SetText({});
  {
    const MessageAnswers answers({Yes, Ok});
    EXPECT_FALSE(form.Unload());
    ExpectKept(form, *form.NameRecord);
  }
  form.NameRecord->SetText(u"Card 1"_s);
  const MessageAnswers answers({Yes});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
}

TEST_F(FailedSaveTest, GoToCard_YesAndSaveStops_DoesNotMove) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->SetText({});
  frame->ActiveCodeForTest = ActiveNone;
  const MessageAnswers answers({Yes, Ok});
  GoToCard(2);
  ExpectKept(form, *form.NameRecord);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(FailedSaveTest, CancelInTheViewer_AfterASaveThatStopped_DropsWithoutAQuestion) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->SetText({});
  {
    const MessageAnswers answers({Yes, Ok});
    EXPECT_FALSE(form.Unload());
  }
  Press(form, u"CancelData"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Global().CardChanged, False);
  ASSERT_NE(OpenScreen<ShowTable>(), nullptr);
  EXPECT_EQ(OpenScreen<ShowTable>()->NameText[0].Text(), QString());
}

TEST_F(FailedSaveTest, OkInTheViewer_TextTooLong_GoesToIt) {
  ShowTable& form = ChangedViewer();
  form.NameText[0].Write(QString(201, u'x'));
  Press(form, u"EditData"_s);
  ExpectKept(form, form.NameText[0]);
}

TEST_F(FailedSaveTest, OkInTheViewer_NameTooLong_GoesToTheName) {
  ShowTable& form = ChangedViewer();
  form.NameRecord->Write(QString(300, u'x'));
  Press(form, u"EditData"_s);
  ExpectKept(form, *form.NameRecord);
  EXPECT_EQ(Column(1, u"Name"_s), u"Card 1"_s);
}

TEST_F(FailedSaveTest, DeleteCurrentCard_CardChanged_AsksNothingAboutIt) {
  ChangedViewer();
  const MessageAnswers answers({Ok});
  DeleteCurrentCard([] {});
  EXPECT_EQ(Column(1, u"Name"_s), u"no card"_s);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(FailedSaveTest, CloseEditor_YesAndNameTaken_StaysOpenAndLaterShowsTheViewer) {
  EditTable& form = ChangedEditor();
  form.NameRecord->SetText(u"Card 3"_s);
  {
    const MessageAnswers answers({Yes, Ok});
    EXPECT_FALSE(form.Unload());
    EXPECT_EQ(answers.Asked().value(1).Text, u"This name already exists!"_s);
    ExpectKept(form, *form.NameRecord);
    EXPECT_FALSE(frame->DelCardEnabled);
  }
  form.NameRecord->SetText(u"Zoe"_s);
  Press(form, u"EditData"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Column(4, u"Name"_s), u"Zoe"_s);
  EXPECT_NE(OpenScreen<ShowTable>(), nullptr);
}

TEST_F(FailedSaveTest, CloseEditor_YesAndNumberEmpty_StaysOpenAtTheNumber) {
  EditTable& form = ChangedEditor();
  Number(form).SetText({});
  const MessageAnswers answers({Yes});
  EXPECT_FALSE(form.Unload());
  ExpectKept(form, Number(form));
  EXPECT_EQ(ui::NoticeInView(), u"The card was not saved: it has no number."_s);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(FailedSaveTest, OkInTheEditor_NumberOfAnotherCardWithASign_IsToldAtTheNumber) {
  file->AddCard(-5, u"Odd"_s);
  EditTable& form = ChangedEditor();
  Number(form).SetText(u"-5"_s);
  Press(form, u"EditData"_s);
  ExpectKept(form, Number(form));
  EXPECT_EQ(ui::NoticeInView(), u"The card was not saved: another card has this number."_s);
  EXPECT_EQ(Number(form).Text(), u"-5"_s);
  EXPECT_EQ(Cards(), 4);
}

TEST_F(FailedSaveTest, OkInTheEditor_NumberEmpty_IsToldAtTheNumber) {
  EditTable& form = ChangedEditor();
  Number(form).SetText({});
  Press(form, u"EditData"_s);
  EXPECT_EQ(ui::NoticeInView(), u"The card was not saved: it has no number."_s);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(FailedSaveTest, CloseEditor_YesAndTextTooLong_StaysOpenAtTheText) {
  EditTable& form = ChangedEditor();
  form.NameText[2].Write(QString(201, u'x'));
  const MessageAnswers answers({Yes});
  EXPECT_FALSE(form.Unload());
  ExpectKept(form, form.NameText[2]);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(FailedSaveTest, CloseEditor_YesAndDiskFails_StaysOpenAndCanBeSavedLater) {
  const FailingWrites writes;
  Reopen();
  EditTable& form = ChangedEditor();
  {
    const MessageAnswers answers({Yes});
    FailingWrites::FailNextCommit();
    EXPECT_FALSE(form.Unload());
    EXPECT_FALSE(form.IsClosing());
    EXPECT_EQ(Global().CardChanged, True);
    EXPECT_EQ(Cards(), 3);
  }
  FailingWrites::Stop();
  const MessageAnswers answers({Yes});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Column(4, u"Name"_s), u"Zoe"_s);
  EXPECT_EQ(OpenScreen<ShowTable>(), nullptr);
}

TEST_F(FailedSaveTest, CloseEditor_ChangedWithoutAName_GoesToTheName) {
  EditTable& form = OpenEditor();
  Type(form.NameText[0], u"Rome"_s);
  const MessageAnswers answers({Ok});
  EXPECT_FALSE(form.Unload());
  ExpectKept(form, *form.NameRecord);
}

TEST_F(FailedSaveTest, OkInTheEditor_TextTooLong_StoresNothingAndGoesToIt) {
  EditTable& form = ChangedEditor();
  form.NameText[0].Write(QString(201, u'x'));
  Press(form, u"EditData"_s);
  ExpectKept(form, form.NameText[0]);
  EXPECT_EQ(form.NameText[0].Text().size(), 201);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(FailedSaveTest, GoToCard_EditorBehindAnotherScreenStops_KeepsItsMarksWhenItComesToTheFront) {
  EditTable& form = ChangedEditor();
  form.NameText[0].Write(QString(201, u'x'));
  (new OtherScreen)->Show();
  const MessageAnswers answers({Yes});
  GoToCard(2);
  ui::Yield();
  EXPECT_EQ(ui::ActiveChild(), &form);
  ExpectKept(form, form.NameText[0]);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(FailedSaveTest, SearchForSimilarNames_YesAndSaveStops_GoesToTheFaultAndNotWhereTheUserClicked) {
  file->AddCard(7, u"Joanna"_s);
  ShowTable& form = ChangedViewer();
  form.NameText[0].Write(QString(201, u'x'));
  Type(*form.NameRecord, u"Ann"_s);
  const MessageAnswers answers({Ok, Yes});
  PressPage(form, 2);
  EXPECT_EQ(answers.Asked().value(1).Text, Question);
  ExpectKept(form, form.NameText[0]);
}
