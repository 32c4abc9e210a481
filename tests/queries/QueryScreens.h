// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Default.h"
#include "forms/Labels.h"
#include "frame/Session.h"
#include "queries/QueryN.h"
#include "resources/strings.h"
#include "tests/support/CardFiles.h"
#include "tests/support/Dialogs.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Messages.h"

#include <memory>

namespace velmora::test {

using namespace Qt::StringLiterals;

/// The screens of a query in a frame, over a real card file.
class QueryScreensTest : public testing::Test {
 protected:
  QueryScreensTest() { FailOnUnexpectedMessages(); }
  ~QueryScreensTest() override {
    ui::SetMsgBoxResponder([](const ui::Message&) { return ui::MsgAnswer::Cancel; });
    frame.reset();
    file.reset();
    ui::SetMsgBoxResponder({});
  }

  /// Makes the file with one card, unless it is to have none.
  void Make(const ACardFile& design, bool withCard = true) {
    file = std::make_unique<CardFile>(design.Design());
    if (withCard) file->AddCard(1, u"Ann"_s);
    frame = std::make_unique<FakeFrame>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
  }
  static QueryN& Open() {
    auto& screen = ui::Default<QueryN>();
    screen.Show();
    QApplication::processEvents();
    return screen;
  }
  [[nodiscard]] static ui::SSCommand& Button(const QWidget& screen, const QString& name) {
    return Find<ui::SSCommand>(screen, name);
  }

  std::unique_ptr<CardFile> file;
  std::unique_ptr<FakeFrame> frame;
};

}  // namespace velmora::test
