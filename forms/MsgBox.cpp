// SPDX-License-Identifier: MIT
#include "forms/MsgBox.h"

#include "forms/KeyHold.h"
#include "resources/strings.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScopeGuard>

#include <optional>
#include <utility>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

using Responder = std::function<MsgAnswer(const Message&)>;

Responder& CurrentResponder() {
  static Responder responder;
  return responder;
}

QMessageBox::Icon IconOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::None:
      return QMessageBox::NoIcon;
    case MsgIcon::Information:
      return QMessageBox::Information;
    case MsgIcon::Exclamation:
      return QMessageBox::Warning;
    case MsgIcon::Question:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

void SetButtons(QMessageBox& box, const Message& message) {
  switch (message.Buttons) {
    case MsgButtons::Ok:
      box.setStandardButtons(QMessageBox::Ok);
      box.setEscapeButton(QMessageBox::Ok);
      return;
    case MsgButtons::OkCancel:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      box.setDefaultButton(message.Destroys ? QMessageBox::Cancel : QMessageBox::Ok);
      box.setEscapeButton(QMessageBox::Cancel);
      return;
    case MsgButtons::YesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box.setDefaultButton(QMessageBox::Yes);
      return;
  }
}

MsgAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return MsgAnswer::Cancel;
    case QMessageBox::Yes:
      return MsgAnswer::Yes;
    case QMessageBox::No:
      return MsgAnswer::No;
    default:
      return MsgAnswer::Ok;
  }
}

/// Esc and the close box answer as the escape button does, but a Yes/No question is not left without an
/// answer.
class MessageBox final : public QMessageBox {
 public:
  MessageBox(QWidget* parent, bool hasEscape) : QMessageBox(parent), m_hasEscape(hasEscape) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!m_hasEscape && event->matches(QKeySequence::Cancel)) {
      event->ignore();
    } else {
      QMessageBox::keyPressEvent(event);
    }
  }
  void closeEvent(QCloseEvent* event) override {
    if (m_hasEscape) {
      QMessageBox::closeEvent(event);
    } else {
      event->ignore();
    }
  }

 private:
  bool m_hasEscape;
};

MsgAnswer Ask(const Message& message) {
  QWidget* modal = QApplication::activeModalWidget();
  MessageBox box(modal != nullptr ? modal : QApplication::activeWindow(),
                 message.Buttons != MsgButtons::YesNo);
  box.setObjectName(u"MsgBox"_s);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(message.Title);
  box.setText(message.Text);
  box.setInformativeText(message.Note);
  box.setIcon(IconOf(message.Icon));
  SetButtons(box, message);
  std::optional<KeyHold> hold;
  if (message.Buttons != MsgButtons::Ok) hold.emplace(box);
  // A question in the middle of long work is no longer a moment to wait.
  const bool busy = QApplication::overrideCursor() != nullptr;
  if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
  const auto restore = qScopeGuard([busy] {
    if (busy) QApplication::restoreOverrideCursor();
  });
  return AnswerOf(box.exec());
}

}  // namespace

MsgAnswer MsgBox(const Message& message) {
  Message shown = message;
  shown.Text.replace(u"\r\n"_s, u"\n"_s);
  if (shown.Title.isEmpty() && !shown.BareTitle) shown.Title = strings::ProgramName;
  return CurrentResponder() ? CurrentResponder()(shown) : Ask(shown);
}

void SetMsgBoxResponder(Responder responder) { CurrentResponder() = std::move(responder); }

}  // namespace velmora::ui
