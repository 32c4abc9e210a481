// SPDX-License-Identifier: MIT
#include "forms/PageButtons.h"

#include <QKeySequence>
#include <QShortcut>

#include <utility>

namespace velmora::ui {

void AddPageKeys(QWidget* screen, const std::function<void(int direction)>& step) {
  for (const auto& [key, direction] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), screen);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, screen,
                     [step, direction = direction] { step(direction); });
  }
}

std::optional<int> NextPageButton(const ControlArray<SSCommand>& buttons, int present, int direction) {
  std::optional<int> next;
  buttons.ForEach([&](const SSCommand& button) {
    const int index = button.Index();
    if (!button.Visible()) return;
    if (direction > 0 && index > present && !next) next = index;
    if (direction < 0 && index < present) next = index;
  });
  return next;
}

void MarkPageButton(const ControlArray<SSCommand>& buttons, int present, Role atRest) {
  buttons.ForEach(
      [&](SSCommand& button) { button.SetForeColor(button.Index() == present ? Role::Red : atRest); });
}

}  // namespace velmora::ui
