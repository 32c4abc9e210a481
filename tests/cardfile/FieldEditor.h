// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/FieldCatalogue.h"
#include "cardfile/FieldChanges.h"
#include "cardfile/fEditLab.h"
#include "forms/ComboBox.h"
#include "forms/Default.h"
#include "forms/ListBox.h"
#include "forms/Notice.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "tests/engine/FailingWrites.h"
#include "tests/support/CardFiles.h"
#include "tests/support/Dialogs.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Messages.h"

#include <optional>

namespace velmora::test {

/// The field editor over a card file, worked by clicks and keys.
class FieldEditor : public ::testing::Test {
 protected:
  FieldEditor() { FailOnUnexpectedMessages(); }
  ~FieldEditor() override {
    ui::DropNotice();
    if (m_screen) m_screen->Unload();
    ui::SetMsgBoxResponder({});
  }

  /// Opens the screen on a file of that design; a card in it, so that the frame would open it again.
  void OpenOn(const ACardFile& design) {
    m_file.emplace(design.Design());
    m_file->AddCard(1, QStringLiteral("Ann"));
    Global().NoFile = False;
    Show();
  }
  void Show() {
    m_screen = &ui::Default<fEditLab>();
    m_screen->Show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_frame));
    // The real frame closes it and opens it again.
    m_frame.OnCall = [this](const QString& call) {
      if (call != QStringLiteral("WhatWasCmdEditFieldsClick")) return;
      m_screen->Unload();
      m_screen = &ui::Default<fEditLab>();
      m_screen->Show();
    };
  }
  /// A text field on page 1, a text and a date field on page 2.
  void OpenOnThreeFields() {
    OpenOn(ACardFile()
               .With(TextField(QStringLiteral("City")))
               .With(TextField(QStringLiteral("Trade")), 2)
               .With(DateField(QStringLiteral("Due")), 2)
               .Titled(2, QStringLiteral("Work")));
  }

  [[nodiscard]] ui::TextBox& Box(const QString& name) const { return Find<ui::TextBox>(*m_screen, name); }
  [[nodiscard]] ui::TextBox& Row(int index) const { return Box(QStringLiteral("TextIn(%1)").arg(index)); }
  [[nodiscard]] ui::TextBox& NewField() const { return Box(QStringLiteral("NewField")); }
  [[nodiscard]] ui::TextBox& Title(int page) const {
    return Box(QStringLiteral("txtNamePage(%1)").arg(page - 1));
  }
  [[nodiscard]] ui::SSCommand& PageButton(int page) const {
    return Find<ui::SSCommand>(*m_screen, QStringLiteral("cmdPage(%1)").arg(page - 1));
  }
  [[nodiscard]] ui::ListBox& List() const {
    return Find<ui::ListBox>(*m_screen, QStringLiteral("lstDelName"));
  }
  [[nodiscard]] QString PageLabel() const {
    return Find<ui::Label>(*m_screen, QStringLiteral("lblCurPage")).Caption();
  }
  void GoToPage(int page) const { Click(PageButton(page)); }
  void Push(const QString& button) const { Press(*m_screen, button); }
  void ChooseKind(FieldKind kind) const {
    auto& list = Find<ui::ComboBox>(*m_screen, QStringLiteral("lstType"));
    list.SetFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < static_cast<int>(kind); ++step) QTest::keyClick(&list, Qt::Key_Down);
    ASSERT_EQ(list.ListIndex(), static_cast<int>(kind));
  }
  void Add(const QString& name, FieldKind kind = FieldKind::Text) const {
    ChooseKind(kind);
    Type(NewField(), name);
    Push(QStringLiteral("cmdAdd"));
  }
  /// Chooses the line with that name and answers the question.
  void Delete(const QString& name, ui::MsgAnswer answer = ui::MsgAnswer::Ok) {
    const auto line = Lines(List()).indexOf(name);
    ASSERT_GE(line, 0);
    ClickLine(List(), static_cast<int>(line));
    const MessageAnswers answers({answer});
    Push(QStringLiteral("cmdDel"));
    m_question = answers.Asked().value(0);
  }
  /// The texts of the rows in view.
  [[nodiscard]] QStringList RowsInView() const {
    QStringList texts;
    for (int index = 0; index < MaxFields; ++index) {
      const auto* box = m_screen->findChild<ui::TextBox*>(QStringLiteral("TextIn(%1)").arg(index));
      if (box != nullptr && box->isVisible()) texts += box->Text();
    }
    return texts;
  }
  [[nodiscard]] QStringList Catalogue() const { return m_file->Rows(QStringLiteral("Location")); }

  std::optional<CardFile> m_file;
  FakeFrame m_frame;
  QPointer<fEditLab> m_screen;
  ui::Message m_question;
};

}  // namespace velmora::test
