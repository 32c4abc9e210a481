// SPDX-License-Identifier: MIT
#include "forms/MsgBox.h"
#include "tests/support/Messages.h"

#include <QApplication>
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
  MsgBoxTest() { SetMsgBoxResponder({}); }
  ~MsgBoxTest() override { SetMsgBoxResponder({}); }

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
};

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

TEST_F(MsgBoxTest, Enter_OnAQuestion_GivesTheFirstButton) {
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo},
                [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
            MsgAnswer::Yes);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel},
                [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
            MsgAnswer::Ok);
}

TEST_F(MsgBoxTest, Escape_OnEachKind_GivesNoCancelOrOk) {
  const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, escape), MsgAnswer::No);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, escape), MsgAnswer::Cancel);
  EXPECT_EQ(Ask({.Text = u"?"_s}, escape), MsgAnswer::Ok);
}

TEST_F(MsgBoxTest, CloseBox_OnEachKind_GivesNoCancelOrOk) {
  const auto close = [](QMessageBox& box) { box.close(); };
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::YesNo}, close), MsgAnswer::No);
  EXPECT_EQ(Ask({.Text = u"?"_s, .Buttons = MsgButtons::OkCancel}, close), MsgAnswer::Cancel);
  EXPECT_EQ(Ask({.Text = u"?"_s}, close), MsgAnswer::Ok);
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
