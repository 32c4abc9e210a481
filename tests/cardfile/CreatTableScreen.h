// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CreatTable.h"
#include "forms/Default.h"
#include "forms/MsgBox.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "tests/support/FakeFrame.h"

#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::test {

using namespace Qt::StringLiterals;

/// The wizard, shown in a frame, with no file open.
class CreatTableTest : public testing::Test {
 protected:
  CreatTableTest() : m_path(m_folder.filePath(u"new.ddb"_s)) {
    Global() = Session();
    ui::SetMsgBoxResponder([this](const ui::Message& message) {
      m_messages.append(message);
      return ui::MsgAnswer::Ok;
    });
    wizard = &ui::Default<CreatTable>();
    wizard->SetNewFileName(m_path);
    wizard->SetNewFileTitle(u"new.ddb"_s);
    wizard->Show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&frame));
  }
  ~CreatTableTest() override {
    if (wizard) wizard->Unload();
    EXPECT_TRUE(m_messages.isEmpty()) << m_messages.value(0).Text.toStdString();
    ui::SetMsgBoxResponder({});
    Global() = Session();
  }

  ui::TextBox& Box(const QString& name) const { return *wizard->findChild<ui::TextBox*>(name); }
  ui::TextBox& Field(int index) const { return Box(u"TextIn(%1)"_s.arg(index)); }
  ui::TextBox& Title(int page) const { return Box(u"txtNamePage(%1)"_s.arg(page - 1)); }
  ui::ComboBox& Kind(int index) const {
    return *wizard->findChild<ui::ComboBox*>(u"lstTypeField(%1)"_s.arg(index));
  }
  ui::SSCommand& Button(const QString& name) const { return *wizard->findChild<ui::SSCommand*>(name); }
  ui::SSCommand& PageButton(int page) const { return Button(u"cmdPage(%1)"_s.arg(page - 1)); }
  ui::ScrollSpin& Spin() const { return *wizard->findChild<ui::ScrollSpin*>(u"VScroll1"_s); }

  static void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
  void GoToPage(int page) const { Click(PageButton(page)); }
  void Press(const QString& button) const { Click(Button(button)); }
  /// Types over whatever the box holds.
  static void Type(ui::TextBox& box, const QString& text) {
    Click(box);
    box.selectAll();
    QTest::keyClicks(&box, text);
  }
  void SetSpin(int count) const {
    Click(Box(u"txtScrol"_s));
    ASSERT_TRUE(Spin().hasFocus());
    while (Spin().Value() > 21 - count) QTest::keyClick(&Spin(), Qt::Key_Up);
    while (Spin().Value() < 21 - count) QTest::keyClick(&Spin(), Qt::Key_Down);
  }
  void AskForFields(int count) const {
    SetSpin(count);
    Press(u"cmdChangeNumF"_s);
  }
  void Choose(int index, FieldKind kind) const {
    Kind(index).setFocus();
    QTest::keyClick(&Kind(index), Qt::Key_Home);
    for (int step = 0; step < static_cast<int>(kind); ++step) QTest::keyClick(&Kind(index), Qt::Key_Down);
    ASSERT_EQ(Kind(index).ListIndex(), static_cast<int>(kind));
  }
  /// The element numbers of the rows in view.
  QList<int> RowsInView() const {
    QList<int> rows;
    for (int index = 0; index < 300; ++index) {
      const auto* box = wizard->findChild<ui::TextBox*>(u"TextIn(%1)"_s.arg(index));
      if (box != nullptr && box->isVisible()) rows.append(index);
    }
    return rows;
  }
  /// The one message that was shown since the last call.
  ui::Message TakeMessage() {
    EXPECT_EQ(m_messages.size(), 1);
    return m_messages.isEmpty() ? ui::Message{} : m_messages.takeFirst();
  }
  QTemporaryDir m_folder;
  QString m_path;
  QList<ui::Message> m_messages;
  FakeFrame frame;
  QPointer<CreatTable> wizard;
};

}  // namespace velmora::test
