// SPDX-License-Identifier: MIT
#include "forms/KeyHold.h"

#include "base/system/Clock.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmora::ui {

namespace {

constexpr int HoldTime = 400;  // milliseconds

}  // namespace

KeyHold::KeyHold(QWidget& question) : m_question(question), m_came(Clock::Now()) {
  // Keys come to whatever has the focus in the question, and access keys before that to the application.
  qApp->installEventFilter(this);
}

bool KeyHold::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::Show && target == &m_question) m_came = Clock::Now();
  const auto* widget = qobject_cast<const QWidget*>(target);
  if (widget == nullptr || widget->window() != &m_question) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      if (!HoldsPress(*static_cast<const QKeyEvent*>(event))) return false;
      // What is accepted is looked up as no access key.
      event->accept();
      return true;
    case QEvent::KeyRelease:
      return HoldsRelease(*static_cast<const QKeyEvent*>(event));
    default:
      return false;
  }
}

bool KeyHold::IsEarly() const {
  // A clock that was set back holds nothing.
  const qint64 age = m_came.msecsTo(Clock::Now());
  return age >= 0 && age < HoldTime;
}

bool KeyHold::HoldsPress(const QKeyEvent& key) {
  if (key.isAutoRepeat()) return !m_taken.contains(key.key());
  if (IsEarly()) return true;
  m_taken.insert(key.key());
  return false;
}

bool KeyHold::HoldsRelease(const QKeyEvent& key) {
  return key.isAutoRepeat() ? !m_taken.contains(key.key()) : !m_taken.remove(key.key());
}

}  // namespace velmora::ui
