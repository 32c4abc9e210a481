// SPDX-License-Identifier: MIT
// What a save or a step that failed must not leave behind.
#include "forms/Notice.h"
#include "tests/cards/CardScreens.h"

#include <QMdiSubWindow>

using namespace velmora;
using namespace velmora::test;
using enum velmora::ui::MsgAnswer;

namespace {

class FailedSaveTracesTest : public CardScreensTest {
 protected:
  /// Cards 1 and 2, the first with a comment. Fields: 0 Due (date), 1 City (text).
  FailedSaveTracesTest() {
    Make(ACardFile().With(DateField(u"Due"_s)).With(TextField(u"City"_s)));
    Connect();
    file->AddCard(1, u"Card 1"_s, {{u"Remarks"_s, u"Calls at noon"_s}});
    file->AddCard(2, u"Card 2"_s);
    Global().CurCard = 1;
  }
  static void RemindOn(DateCtrl& date, const QString& text) {
    TypeDate(date, text);
    date.strAgents = u"Ann"_s;
    date.SetIsActive(true);
  }
};

}  // namespace

TEST_F(FailedSaveTracesTest, Step_SaveRefusedAndThenDropped_LeavesNoReminder) {
  ShowTable& form = OpenViewer(1);
  RemindOn(form.NameDate[0], u"6/30/2024"_s);
  form.NameText[1].Write(QString(201, u'x'));
  {
    const MessageAnswers answers({Yes});
    form.ShowIndex(2);
    EXPECT_EQ(Global().CurCard, 1);
  }
  const MessageAnswers answers({No});
  form.ShowIndex(2);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(Reminders(), QStringList());
}

TEST_F(FailedSaveTracesTest, Close_NewCardRefusedAndThenDropped_LeavesNoReminder) {
  EditTable& form = OpenEditor();
  Type(*form.NameRecord, u"Zoe"_s);
  RemindOn(form.NameDate[0], u"6/30/2024"_s);
  form.NameText[1].Write(QString(201, u'x'));
  {
    const MessageAnswers answers({Yes});
    EXPECT_FALSE(form.Unload());
  }
  const MessageAnswers answers({No});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Reminders(), QStringList());
}

TEST_F(FailedSaveTracesTest, Step_FileGone_LeavesTheCommentOfTheCardInView) {
  ShowTable& form = OpenViewer(1);
  Global().CardDb->Close();
  form.ShowIndex(2);
  EXPECT_EQ(Global().CurCard, 1);
  EXPECT_EQ(form.DescrText->Text(), u"Calls at noon"_s);
}

TEST_F(FailedSaveTracesTest, Step_SaveRefusedOnAMinimizedScreen_BringsTheFaultIntoView) {
  ShowTable& form = OpenViewer(1);
  form.NameText[1].Write(QString(201, u'x'));
  auto* window = qobject_cast<QMdiSubWindow*>(form.parentWidget());
  ASSERT_NE(window, nullptr);
  window->showMinimized();
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_FALSE(window->isMinimized());
  EXPECT_TRUE(form.NameText[1].hasFocus());
  EXPECT_TRUE(ui::NoticeInView().startsWith(u"The card was not saved. City"_s));
}
