// SPDX-License-Identifier: MIT
#include "forms/Apostrophe.h"
#include "forms/TextBox.h"
#include "resources/strings.h"
#include "tests/support/Messages.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class ApostropheTest : public WindowTest {};

TEST_F(ApostropheTest, RefusesApostrophe_TextWithOne_IsToldAndLeftSelected) {
  TextBox box(&m_window);
  box.SetText(u"L'Aquila"_s);
  Show();
  const MessageAnswers answers({MsgAnswer::Ok});
  EXPECT_TRUE(RefusesApostrophe(box));
  EXPECT_EQ(answers.Asked().value(0).Text, QString(strings::NoApostrophe));
  EXPECT_EQ(box.selectedText(), u"L'Aquila"_s);
  EXPECT_TRUE(box.hasFocus());
}

TEST_F(ApostropheTest, RefusesApostrophe_TextWithoutOne_IsLeftInPeace) {
  TextBox box(&m_window);
  box.SetText(u"\"Lyon\" `s"_s);
  EXPECT_FALSE(RefusesApostrophe(box));
}

}  // namespace
}  // namespace velmora::ui
