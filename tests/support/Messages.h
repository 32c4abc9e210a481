// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FileDialog.h"
#include "forms/MsgBox.h"

#include <QList>
#include <QString>

#include <gtest/gtest.h>

#include <utility>

namespace velmora {

/// From here on a message or a file dialog that no test expects fails the test and is answered with Cancel or
/// No, instead of waiting for a person for ever.
inline void FailOnUnexpectedMessages() {
  ui::SetMsgBoxResponder([](const ui::Message& message) {
    ADD_FAILURE() << "unexpected message: " << message.Text.toStdString();
    return message.Buttons == ui::MsgButtons::YesNo ? ui::MsgAnswer::No : ui::MsgAnswer::Cancel;
  });
  ui::SetFileDialogResponder([](const ui::FileDialog& dialog) {
    ADD_FAILURE() << "unexpected file dialog: " << dialog.DialogTitle.toStdString();
    return QString();
  });
}

/// Answers the messages to come, one answer each in turn, and keeps what was asked. A message too many fails
/// the test, and so does, at its end, an answer that nobody asked for.
class MessageAnswers final {
 public:
  explicit MessageAnswers(QList<ui::MsgAnswer> answers) : m_answers(std::move(answers)) {
    ui::SetMsgBoxResponder([this](const ui::Message& message) {
      m_asked.append(message);
      if (!m_answers.isEmpty()) return m_answers.takeFirst();
      ADD_FAILURE() << "one message too many: " << message.Text.toStdString();
      return ui::MsgAnswer::Cancel;
    });
  }
  ~MessageAnswers() {
    EXPECT_TRUE(m_answers.isEmpty()) << m_answers.size() << " messages did not come";
    FailOnUnexpectedMessages();
  }
  MessageAnswers(const MessageAnswers&) = delete;
  MessageAnswers& operator=(const MessageAnswers&) = delete;

  [[nodiscard]] const QList<ui::Message>& Asked() const { return m_asked; }

 private:
  QList<ui::MsgAnswer> m_answers;
  QList<ui::Message> m_asked;
};

}  // namespace velmora
