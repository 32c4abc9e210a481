// SPDX-License-Identifier: MIT
#include "cards/Reminders.h"
#include "cards/frmReminder.h"
#include "tests/cards/CardScreens.h"

using namespace velmora;
using namespace velmora::test;
using enum velmora::ui::MsgAnswer;

namespace {

/// Today is 15 May 2024.
class frmReminderTest : public CardScreensTest {
 protected:
  frmReminderTest() {
    Make(ACardFile().With(DateField(u"Due"_s)).With(DateField(u"Born"_s)).With(TextField(u"City"_s)));
    Connect();
    file->AddCard(1, u"Ann"_s, {{u"Due"_s, u"2024-06-30"_s}, {u"City"_s, u"Rome"_s}});
  }

  static DateCtrl& Due(const CardForm& form) { return form.NameDate[0]; }
  static DateCtrl& Born(const CardForm& form) { return form.NameDate[1]; }
  static ui::SSRibbon& Order(const frmReminder& dialog) { return Find<ui::SSRibbon>(dialog, u"cmdOrder"_s); }
  static UpDate& Face(const frmReminder& dialog) { return Find<UpDate>(dialog, u"mDate"_s); }
  static ui::ListBox& Agents(const frmReminder& dialog) { return Find<ui::ListBox>(dialog, u"ListCollab"_s); }
  static void Save(const CardForm& form) { Press(form, u"EditData"_s); }
};

}  // namespace

TEST_F(frmReminderTest, Show_EmptyDate_OpensOnTodayWithTheToggleOff) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Born(form), [](const frmReminder& dialog) {
    EXPECT_EQ(dialog.windowTitle(), u"Date Setting"_s);
    EXPECT_EQ(Face(dialog).Value().date(), QDate(2024, 5, 15));
    EXPECT_FALSE(Order(dialog).Value());
    EXPECT_EQ(Agents(dialog).ListCount(), 0);
  });
}

TEST_F(frmReminderTest, Show_EveryControl_HasItsCaptionAndTip) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Born(form), [](const frmReminder& dialog) {
    EXPECT_EQ(Button(dialog, u"cmdAddAgents"_s).Caption(), u"Edit"_s);
    EXPECT_EQ(Button(dialog, u"cmdAddAgents"_s).toolTip(), u"Click to Select Agents to Receive Reminders"_s);
    EXPECT_EQ(Button(dialog, u"cmdDelete"_s).Caption(), u"Delete"_s);
    EXPECT_EQ(Button(dialog, u"cmdCancel"_s).Caption(), u"Cancel"_s);
    EXPECT_EQ(Button(dialog, u"cmdCancel"_s).toolTip(), u"Click to Exit with No Changes"_s);
    EXPECT_EQ(Order(dialog).toolTip(), u"Click to Set  Reminder -- The Button Turns Red When Activated."_s);
    EXPECT_EQ(Agents(dialog).toolTip(), u"Click to View List of  Selected Agents"_s);
    EXPECT_EQ(Find<ui::Label>(dialog, u"Label2(0)"_s).Caption(), u"Agent"_s);
    EXPECT_EQ(Find<ui::Label>(dialog, u"Label2(1)"_s).Caption(), u"Reminder"_s);
    EXPECT_EQ(Find<ui::Label>(dialog, u"Label2(1)"_s).toolTip(), u" View List of Selected Agents"_s);
  });
}

TEST_F(frmReminderTest, Show_ActiveDate_ShowsItWithItsAgents) {
  file->AddRow(u"TableDatesRemainder"_s,
               {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}, {u"DueAgents"_s, u"Ann,Bob"_s}});
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    EXPECT_EQ(Face(dialog).Value().date(), QDate(2024, 6, 30));
    EXPECT_TRUE(Order(dialog).Value());
    EXPECT_EQ(Order(dialog).BackColor(), ui::Role::Red);
    EXPECT_EQ(Agents(dialog).List(0) + Agents(dialog).List(1), u"AnnBob"_s);
    EXPECT_EQ(Agents(dialog).ListIndex(), 0);
  });
}

TEST_F(frmReminderTest, Show_TextThatIsNoDate_OpensOnToday) {
  const ShowTable& form = OpenViewer(1);
  Due(form).SetText(u"soon"_s);
  InReminder(Due(form),
             [](const frmReminder& dialog) { EXPECT_EQ(Face(dialog).Value().date(), QDate(2024, 5, 15)); });
  const MessageAnswers answers({No});
  OpenScreen<ShowTable>()->ShowIndex(1);
}

TEST_F(frmReminderTest, Show_KeysOnTheDate_OpenIt) {
  const ShowTable& form = OpenViewer(1);
  Due(form).SetFocus();
  int came = 0;
  for (const auto& [key, modifier] :
       {std::pair{Qt::Key_F4, Qt::NoModifier}, std::pair{Qt::Key_Down, Qt::AltModifier}}) {
    QTimer::singleShot(0, &Due(form), [&came] {
      if (auto* dialog = OpenScreen<frmReminder>()) {
        came += dialog->isVisible() ? 1 : 0;
        QTest::keyClick(dialog, Qt::Key_Escape);
      }
    });
    QTest::keyClick(Due(form).DateVal(), key, modifier);
  }
  EXPECT_EQ(came, 2);
}

TEST_F(frmReminderTest, Order_Clicked_TurnsRedAndBack) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    EXPECT_EQ(Order(dialog).BackColor(), ui::Role::Red);
    Click(Order(dialog));
    EXPECT_EQ(Order(dialog).BackColor(), ui::Role::ButtonFace);
  });
}

TEST_F(frmReminderTest, Ok_OrderedForToday_IsRefused) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Born(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    const MessageAnswers answers({Ok});
    Press(dialog, u"cmdOK"_s);
    EXPECT_EQ(answers.Asked().value(0).Text, u"Please select a different date!"_s);
    EXPECT_FALSE(dialog.IsClosing());
  });
  EXPECT_EQ(Born(form).Text(), QString());
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(frmReminderTest, Ok_OrderedForTomorrow_IsTaken) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Born(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    Press(dialog, u"cmdDayUp"_s);
    Press(dialog, u"cmdOK"_s);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(Born(form).Text(), u"5/16/2024"_s);
  EXPECT_TRUE(Born(form).IsActive());
  EXPECT_EQ(Global().CardChanged, True);
  Save(form);
}

TEST_F(frmReminderTest, Ok_PastDateNotOrdered_IsAPlainDate) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Born(form), [](const frmReminder& dialog) {
    Press(dialog, u"cmdYearDown"_s);
    Press(dialog, u"cmdOK"_s);
  });
  EXPECT_EQ(Born(form).Text(), u"5/15/2023"_s);
  EXPECT_FALSE(Born(form).IsActive());
  Save(form);
  EXPECT_EQ(Column(1, u"Born"_s), u"5/15/2023"_s);
}

TEST_F(frmReminderTest, Ok_SameDate_CountsAsAnEdit) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) { Press(dialog, u"cmdOK"_s); });
  EXPECT_EQ(Due(form).Text(), u"6/30/2024"_s);
  EXPECT_EQ(Global().CardChanged, True);
  Save(form);
}

TEST_F(frmReminderTest, Ok_Agents_AreTurnedRound) {
  const ShowTable& form = OpenViewer(1);
  Due(form).strAgents = u"Ann,Bob,Eve"_s;
  InReminder(Due(form), [](const frmReminder& dialog) { Press(dialog, u"cmdOK"_s); });
  EXPECT_EQ(Due(form).strAgents, u"Eve,Bob,Ann"_s);
  Save(form);
}

TEST_F(frmReminderTest, AddAgents_Clicked_DoesNothing) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    Press(dialog, u"cmdAddAgents"_s);
    EXPECT_FALSE(dialog.IsClosing());
    EXPECT_EQ(Agents(dialog).ListCount(), 0);
  });
}

TEST_F(frmReminderTest, Cancel_Clicked_ChangesNothing) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    Press(dialog, u"cmdDayUp"_s);
    Press(dialog, u"cmdCancel"_s);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(Due(form).Text(), u"6/30/2024"_s);
  EXPECT_FALSE(Due(form).IsActive());
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(frmReminderTest, Delete_AndSave_ClearsTheFieldAndLeavesTheStoredReminder) {
  file->AddRow(u"TableDatesRemainder"_s,
               {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}, {u"DueAgents"_s, u"Ann"_s}});
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) { Press(dialog, u"cmdDelete"_s); });
  EXPECT_EQ(Due(form).Text(), QString());
  EXPECT_EQ(Due(form).strAgents, QString());
  EXPECT_FALSE(Due(form).IsActive());
  EXPECT_EQ(Global().CardChanged, True);
  Save(form);
  EXPECT_EQ(Column(1, u"Due"_s), u"Null"_s);
  EXPECT_EQ(Reminders(), QStringList(u"1|6/30/2024|Ann|Null|Null"_s));
  EXPECT_FALSE(Due(form).IsActive());
}

TEST_F(frmReminderTest, RoundTrip_DialogToTableAndBack) {
  ShowTable& form = OpenViewer(1);
  file->AddCard(2, u"Bob"_s);
  Due(form).strAgents = u"Ann,Bob"_s;
  InReminder(Due(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    Press(dialog, u"cmdMonthUp"_s);
    Press(dialog, u"cmdOK"_s);
  });
  Save(form);
  EXPECT_EQ(Column(1, u"Due"_s), u"7/30/2024"_s);
  EXPECT_EQ(Reminders(), QStringList(u"1|7/30/2024|Bob,Ann|Null|Null"_s));
  form.ShowIndex(2);
  EXPECT_FALSE(Due(form).IsActive());
  form.ShowIndex(1);
  EXPECT_TRUE(Due(form).IsActive());
  EXPECT_EQ(Due(form).strAgents, u"Bob,Ann"_s);
}

TEST_F(frmReminderTest, RoundTrip_ReminderTakenBack_ClearsItsColumns) {
  file->AddRow(u"TableDatesRemainder"_s,
               {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}, {u"DueAgents"_s, u"Ann"_s}});
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    Press(dialog, u"cmdOK"_s);
  });
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"1|Null|Null|Null|Null"_s));
  EXPECT_EQ(Column(1, u"Due"_s), u"6/30/2024"_s);
}

TEST_F(frmReminderTest, Save_TwoDatesWithReminders_ShareOneRow) {
  const ShowTable& form = OpenViewer(1);
  for (DateCtrl* date : {&Due(form), &Born(form)}) {
    InReminder(*date, [](const frmReminder& dialog) {
      Click(Order(dialog));
      Press(dialog, u"cmdYearUp"_s);
      Press(dialog, u"cmdOK"_s);
    });
  }
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"1|6/30/2025||5/15/2025|"_s));
}

TEST_F(frmReminderTest, Show_OverTheEditor_LeavesItsChangeMarks) {
  const EditTable& form = OpenEditor();
  Type(form.NameText[2], u"Oslo"_s);
  InReminder(Due(form), [](const frmReminder& dialog) { Press(dialog, u"cmdCancel"_s); });
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(frmReminderTest, Cancel_OfTheCard_DropsTheDialogsWork) {
  const ShowTable& form = OpenViewer(1);
  InReminder(Due(form), [](const frmReminder& dialog) {
    Click(Order(dialog));
    Press(dialog, u"cmdOK"_s);
  });
  Press(form, u"CancelData"_s);
  EXPECT_TRUE(Reminders().isEmpty());
  EXPECT_FALSE(Due(*OpenScreen<ShowTable>()).IsActive());
}

TEST_F(frmReminderTest, Ok_DateWithATime_KeepsTheTime) {
  const ShowTable& form = OpenViewer(1);
  Due(form).SetText(u"6/30/2024 10:15:00"_s);
  InReminder(Due(form), [](const frmReminder& dialog) { Press(dialog, u"cmdOK"_s); });
  EXPECT_EQ(Due(form).Text(), u"6/30/2024 10:15:00"_s);
  Save(form);
}
