// SPDX-License-Identifier: MIT
#include "forms/AsksForValues.h"

#include "forms/TextBox.h"

#include <QKeyEvent>

#include <utility>

namespace velmora::ui {

namespace {

/// Takes the asking keys away from its box, which owns it.
class KeyFilter final : public QObject {
 public:
  KeyFilter(TextBox& box, std::function<void()> open) : QObject(&box), m_open(std::move(open)) {
    box.installEventFilter(this);
  }
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !AsksForValues(*static_cast<QKeyEvent*>(event))) return false;
    m_open();
    return true;
  }

 private:
  std::function<void()> m_open;
};

}  // namespace

bool AsksForValues(const QKeyEvent& event) {
  const bool altDown = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
  return altDown || (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier);
}

void WhenAskedForValues(TextBox& box, std::function<void()> open) {
  QObject::connect(&box, &TextBox::DblClick, &box, open);
  new KeyFilter(box, std::move(open));
}

}  // namespace velmora::ui
