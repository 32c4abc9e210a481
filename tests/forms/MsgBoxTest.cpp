// SPDX-License-Identifier: MIT
#include "base/system/Clock.h"
#include "forms/MsgBox.h"
#include "tests/support/Messages.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class MsgBoxTest : public ::testing::Test {
 protected:
  MsgBoxTest() {
    SetMsgBoxResponder({});
    Clock::Set([this] { return m_now; });
  }
  ~MsgBoxTest() override {
    SetMsgBoxResponder({});
    Clock::Set({});
  }
  void LetTheHoldPass() { m_now = m_now.addMSecs(400); }

  /// Runs `act` on the box once it stands, and gives the answer.
  static MsgAnswer Ask(const Message& message, std::function<void(QMessageBox&)> act) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      poll.stop();
      act(*box);
    });
    poll.start(1);
    return MsgBox(message);
  }
  static void Press(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
  }
  /// A key as it comes from the window system, access keys included; the box may be gone half-way.
  static void Key(QMessageBox& box, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(box.windowHandle(), key, modifiers);
  }

  QDateTime m_now{QDate(2026, 3, 14), QTime(10, 0)};
};

TEST_F(MsgBoxTest, Note_OfAQuestion_StandsBelowItsText) {
  const Message question{
      .Text = u"Go?"_s, .Buttons = MsgButtons::OkCancel, .Destroys = true, .Note = u"3 others go too."_s};
  const MsgAnswer answer = Ask(question, [this](QMessageBox& box) {
    EXPECT_EQ(box.text(), u"Go?"_s);
    EXPECT_EQ(box.informativeText(), u"3 others go too."_s);
    LetTheHoldPass();
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_EQ(answer, MsgAnswer::Cancel);
}

TEST_F(MsgBoxTest, Box_PlainText_ShowsMarkupAndLineBreaks) {
  Ask({.Text = u"<b>one</b>\r\ntwo"_s}, [](QMessageBox& box) {
    EXPECT_EQ(box.objectName(), u"MsgBox"_s);
    EXPECT_EQ(box.text(), u"<b>one</b>\ntwo"_s);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    Press(box, QMessageBox::Ok);
  });
}

TEST_F(MsgBoxTest, Box_WithoutATitle_BearsTheProgramsName) {
  Ask({.Text = u"x"_s}, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), u"Velmora"_s);
    Press(box, QMessageBox::Ok);
  });
  Ask({.Text = u"x"_s, .Title = u"Info"_s, .Icon = MsgIcon::Information}, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), u"Info"_s);
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    Press(box, QMessageBox::Ok);
  });
  Ask({.Text = u"x"_s, .BareTitle = true}, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), QString());
    Press(box, QMessageBox::Ok);
  });
}

TEST_F(MsgBoxTest, YesNo_EachButton_GivesItsAnswer) {
  const Message question{.Text = u"?"_s, .Buttons = MsgButtons::YesNo};
  EXPECT_EQ(Ask(question, [](QMessageBox& box) { Press(box, QMessageBox::Yes); }), MsgAnswer::Yes);
  EXPECT_EQ(Ask(question, [](QMessageBox& box) { Press(box, QMessageBox::No); }), MsgAnswer::No);
}

TEST_F(MsgBoxTest, Enter_OnAQuestion_GivesTheDefaultButton) {
  const auto enter = [this](QMessageBox& box) {
    LetTheHoldPass();
    Key(box, Qt::Key_Return);
  };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, enter), MsgAnswer::Yes);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, enter), MsgAnswer::Ok);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel, .Destroys = true}, enter),
            MsgAnswer::Cancel);
}

TEST_F(MsgBoxTest, Escape_WhereThereIsCancelOrOkAlone_GivesIt) {
  const auto escape = [this](QMessageBox& box) {
    LetTheHoldPass();
    Key(box, Qt::Key_Escape);
  };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, escape), MsgAnswer::Cancel);
  EXPECT_EQ(Ask({.Text = u"?"_s}, escape), MsgAnswer::Ok);
}

TEST_F(MsgBoxTest, CloseBox_WhereThereIsCancelOrOkAlone_GivesIt) {
  const auto close = [](QMessageBox& box) { box.close(); };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, close), MsgAnswer::Cancel);
  EXPECT_EQ(Ask({.Text = u"?"_s}, close), MsgAnswer::Ok);
}

TEST_F(MsgBoxTest, YesNo_EscapeOrCloseBox_StaysUntilItIsAnswered) {
  const auto leave = [this](QMessageBox& box) {
    LetTheHoldPass();
    Key(box, Qt::Key_Escape);
    EXPECT_TRUE(box.isVisible());
    EXPECT_FALSE(box.close());
    EXPECT_TRUE(box.isVisible());
    if (box.isVisible()) Press(box, QMessageBox::Yes);
  };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, leave), MsgAnswer::Yes);
}

TEST_F(MsgBoxTest, Question_KeysInItsFirstMoment_AreIgnored) {
  const auto early = [this](QMessageBox& box) {
    m_now = m_now.addMSecs(399);
    for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_N}) {
      Key(box, static_cast<Qt::Key>(key));
      EXPECT_TRUE(box.isVisible()) << key;
    }
    Key(box, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(box.isVisible());
    m_now = m_now.addMSecs(1);
    Key(box, Qt::Key_Return);
    EXPECT_FALSE(box.isVisible());
  };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, early), MsgAnswer::Ok);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, early), MsgAnswer::Yes);
}

TEST_F(MsgBoxTest, Question_RepeatsOfAKeyThatWasDown_AreIgnored) {
  const auto repeats = [this](QMessageBox& box) {
    LetTheHoldPass();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent repeat(type, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
      QApplication::sendEvent(box.focusWidget(), &repeat);
      EXPECT_TRUE(box.isVisible());
    }
    QKeyEvent letGo(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, u" "_s);
    QApplication::sendEvent(box.focusWidget(), &letGo);
    EXPECT_TRUE(box.isVisible());
    Key(box, Qt::Key_Right);
    Key(box, Qt::Key_Space);
    EXPECT_FALSE(box.isVisible());
  };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, repeats), MsgAnswer::No);
}

TEST_F(MsgBoxTest, Question_MouseAndAssistiveTechnologyInItsFirstMoment_Answer) {
  const Message question{.Text = u"?"_s, .Buttons = MsgButtons::YesNo};
  EXPECT_EQ(Ask(question, [](QMessageBox& box) { Press(box, QMessageBox::No); }), MsgAnswer::No);
  EXPECT_EQ(Ask(question,
                [](QMessageBox& box) {
                  QAccessibleInterface* no =
                      QAccessible::queryAccessibleInterface(box.button(QMessageBox::No));
                  no->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
                }),
            MsgAnswer::No);
}

TEST_F(MsgBoxTest, Message_KeyInItsFirstMoment_IsTaken) {
  EXPECT_EQ(Ask({.Text = u"!"_s}, [](QMessageBox& box) { Key(box, Qt::Key_Return); }), MsgAnswer::Ok);
}

TEST_F(MsgBoxTest, Hourglass_WhileABoxStands_IsOff) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  Ask({.Text = u"x"_s}, [](QMessageBox& box) {
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    Press(box, QMessageBox::Ok);
  });
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  QApplication::restoreOverrideCursor();
}

TEST_F(MsgBoxTest, Responder_Set_SeesWhatTheUserWouldSee) {
  const MessageAnswers answers({MsgAnswer::Yes, MsgAnswer::Ok});
  EXPECT_EQ(MsgBox({.Text = u"a\r\nb"_s, .Buttons = MsgButtons::YesNo}), MsgAnswer::Yes);
  EXPECT_EQ(MsgBox(u"plain"_s), MsgAnswer::Ok);
  ASSERT_EQ(answers.Asked().size(), 2);
  EXPECT_EQ(answers.Asked().at(0).Text, u"a\nb"_s);
  EXPECT_EQ(answers.Asked().at(1).Title, u"Velmora"_s);
}

TEST_F(MsgBoxTest, FailOnUnexpectedMessages_AQuestion_FailsAndIsDeclined) {
  FailOnUnexpectedMessages();
  static MsgAnswer answer;
  EXPECT_NONFATAL_FAILURE(answer = MsgBox({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}),
                          "unexpected message");
  EXPECT_EQ(answer, MsgAnswer::No);
}

}  // namespace
}  // namespace velmora::ui
