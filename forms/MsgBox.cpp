// SPDX-License-Identifier: MIT
#include "forms/MsgBox.h"

#include "resources/strings.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopeGuard>

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

void SetButtons(QMessageBox& box, MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::Ok:
      box.setStandardButtons(QMessageBox::Ok);
      box.setEscapeButton(QMessageBox::Ok);
      return;
    case MsgButtons::OkCancel:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      box.setDefaultButton(QMessageBox::Ok);
      box.setEscapeButton(QMessageBox::Cancel);
      return;
    case MsgButtons::YesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box.setDefaultButton(QMessageBox::Yes);
      box.setEscapeButton(QMessageBox::No);
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

MsgAnswer Ask(const Message& message) {
  QWidget* modal = QApplication::activeModalWidget();
  QMessageBox box(modal != nullptr ? modal : QApplication::activeWindow());
  box.setObjectName(u"MsgBox"_s);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(message.Title);
  box.setText(message.Text);
  box.setIcon(IconOf(message.Icon));
  SetButtons(box, message.Buttons);
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
