// SPDX-License-Identifier: MIT
#include "shell/HelpKey.h"

#include "forms/Form.h"
#include "forms/Waiting.h"
#include "shell/Programs.h"

#include <QApplication>
#include <QKeyEvent>

#include <optional>

namespace velmora {

namespace {

/// The topic of the screen in front; nothing when something stands over it that is no screen.
std::optional<int> TopicInFront() {
  const QWidget* dialog = QApplication::activeModalWidget();
  const ui::Form* screen = dialog == nullptr ? ui::ActiveChild() : qobject_cast<const ui::Form*>(dialog);
  if (QApplication::activePopupWidget() != nullptr || (dialog != nullptr && screen == nullptr))
    return std::nullopt;
  return screen == nullptr ? topics::None : screen->HelpTopic();
}

bool IsHelpKey(const QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

}  // namespace

// A dialog's keys never reach the frame, nor its menu.
HelpKey::HelpKey(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* target, QEvent* event) {
  if (!target->isWidgetType() || !IsHelpKey(*event) || ui::IsRepainting()) return false;
  const std::optional<int> topic = TopicInFront();
  if (!topic) return false;
  event->accept();
  // What is accepted is looked up as no shortcut: the menu's entry of this key opens the contents.
  if (event->type() == QEvent::KeyPress) OpenHelpTopic(*topic);
  return true;
}

}  // namespace velmora
