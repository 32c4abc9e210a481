// SPDX-License-Identifier: MIT
#include "forms/LeaveCheck.h"

#include "forms/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QScopeGuard>

namespace velmora::ui {

namespace {

constexpr const char* commandProperty = "velmoraCommand";

bool OnClosingForm(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto* form = qobject_cast<const Form*>(widget); form != nullptr && form->IsClosing())
      return true;
  }
  return false;
}

/// Watches the application for everything by which the user may leave a box that has a check.
class LeaveGuard final : public QObject {
 public:
  static LeaveGuard& Instance() {
    static QPointer<LeaveGuard> guard;
    if (guard.isNull()) guard = new LeaveGuard(qApp);
    return *guard;
  }

  void Register(QWidget* box, LeaveCheck check) {
    if (!m_checks.contains(box)) {
      connect(box, &QObject::destroyed, this, [this, box] { m_checks.remove(box); });
    }
    m_checks[box] = std::move(check);
  }

  bool eventFilter(QObject* target, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
        return OnPress(target);
      case QEvent::MouseButtonDblClick:
        return m_swallowing || OnPress(target);
      case QEvent::MouseMove:
        if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) m_swallowing = false;
        return m_swallowing;
      case QEvent::MouseButtonRelease:
        return OnRelease(target);
      case QEvent::WindowBlocked:
        ++m_dialogs;
        return false;
      case QEvent::Shortcut:
        return OnShortcut(target);
      default:
        return false;
    }
  }

 private:
  explicit LeaveGuard(QApplication* application) : QObject(application) {
    application->installEventFilter(this);
    connect(application, &QApplication::focusChanged, this, &LeaveGuard::OnFocusChanged);
  }

  /// The box with a check that has the focus, unless its screen is closing.
  QWidget* GuardedBox() const {
    QWidget* box = QApplication::focusWidget();
    return box != nullptr && m_checks.contains(box) && !OnClosingForm(box) ? box : nullptr;
  }

  /// Runs the check; true when the user must not leave.
  bool Refused(QWidget* box) {
    if (m_checking) return false;
    const QPointer<QWidget> watched(box);
    m_checking = true;
    const auto done = qScopeGuard([this] { m_checking = false; });
    const int dialogs = m_dialogs;
    const LeaveCheck check = m_checks.value(box);
    const QPointer<QWidget> target(check());
    // The box that lent the focus for a moment is not left: its own check stays out of it.
    if (target) target->setFocus(Qt::OtherFocusReason);
    if (target) return true;
    m_passed = watched;
    m_asked = m_dialogs != dialogs;
    // The pass holds for the focus change that this very event brings, if any.
    QMetaObject::invokeMethod(
        this,
        [this] {
          m_passed.clear();
          m_asked = false;
        },
        Qt::QueuedConnection);
    return false;
  }

  static bool TakesFocusByClick(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
      if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) return true;
      if (widget->isWindow()) return false;
    }
    return false;
  }

  static bool IsCommand(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
      if (widget->property(commandProperty).toBool()) return true;
      if (qobject_cast<const QAbstractButton*>(widget) != nullptr) return widget->isEnabled();
    }
    return false;
  }

  bool OnPress(QObject* target) {
    // Qt moves the focus before it delivers the press: the check may have refused this very click already.
    auto* widget = qobject_cast<QWidget*>(target);
    if (widget == nullptr) return false;
    m_swallowing = std::exchange(m_refusedNow, false);
    // A check that put a question to the user has taken the button's release with it.
    if (m_swallowing || std::exchange(m_asked, false)) return true;
    QWidget* box = GuardedBox();
    if (box == nullptr || widget == box || box->isAncestorOf(widget)) return false;
    if (widget->window() != box->window() || QApplication::activePopupWidget() != nullptr) return false;
    if (qobject_cast<QMenuBar*>(widget) != nullptr || qobject_cast<QMenu*>(widget) != nullptr) return false;
    if (OnClosingForm(widget) || !(TakesFocusByClick(widget) || IsCommand(widget))) return false;
    m_swallowing = Refused(box);
    return m_swallowing || std::exchange(m_asked, false);
  }

  bool OnRelease(QObject* target) {
    // The window itself must see it, or Qt takes the button for still pressed.
    return qobject_cast<QWidget*>(target) != nullptr && std::exchange(m_swallowing, false);
  }

  bool OnShortcut(const QObject* target) {
    QWidget* box = GuardedBox();
    if (box == nullptr || qobject_cast<const QMenuBar*>(target) != nullptr) return false;
    return Refused(box);
  }

  void OnFocusChanged(QWidget* old, QWidget* now) {
    const bool passed = m_passed == old && old != nullptr;
    m_passed.clear();
    if (passed || m_checking || old == nullptr || now == nullptr || old == now || !m_checks.contains(old))
      return;
    if (!old->isVisible() || !old->isEnabled() || now->window() != old->window() || OnClosingForm(old))
      return;
    if (qobject_cast<QMenuBar*>(now) != nullptr) return;
    if (!Refused(old)) return;
    m_refusedNow = true;
    QMetaObject::invokeMethod(
        this, [this] { m_refusedNow = false; }, Qt::QueuedConnection);
  }

  QHash<QWidget*, LeaveCheck> m_checks;
  QPointer<QWidget> m_passed;
  bool m_checking = false;
  bool m_refusedNow = false;
  bool m_asked = false;
  int m_dialogs = 0;
  bool m_swallowing = false;
};

}  // namespace

void CheckOnLeave(QWidget* box, LeaveCheck check) { LeaveGuard::Instance().Register(box, std::move(check)); }

void MarkAsCommand(QWidget* widget) { widget->setProperty(commandProperty, true); }

}  // namespace velmora::ui
