// SPDX-License-Identifier: MIT
#include "forms/FocusWatcher.h"

#include <QApplication>
#include <QHash>
#include <QMenuBar>
#include <QPointer>

namespace velmora::ui {

namespace {

class FocusWatcher final : public QObject {
 public:
  explicit FocusWatcher(QApplication* application) : QObject(application) {
    connect(application, &QApplication::focusChanged, this, &FocusWatcher::OnFocusChanged);
  }

 private:
  /// The control that the focus widget is, or is a part of.
  static QWidget* Holder(QWidget* focus) {
    QWidget* parent = focus->parentWidget();
    const bool part = dynamic_cast<FocusTaker*>(focus) == nullptr && parent != nullptr &&
                      parent->focusProxy() == focus && dynamic_cast<FocusTaker*>(parent) != nullptr;
    return part ? parent : focus;
  }

  void OnFocusChanged(QWidget* /*old*/, QWidget* focus) {
    if (focus == nullptr || qobject_cast<QMenuBar*>(focus) != nullptr) return;
    QWidget* window = focus->window();
    if (window->windowType() == Qt::Popup) return;
    QWidget* holder = Holder(focus);
    if (m_last.value(window) == holder) return;
    m_last.removeIf([](const auto& entry) { return entry.value().isNull(); });
    const QPointer<QWidget> left = m_last.value(window);
    const QPointer<QWidget> got(holder);
    m_last[window] = got;
    if (auto* control = dynamic_cast<FocusTaker*>(left.data())) control->OnLostFocus();
    // What ran on leaving may have moved the focus on.
    if (got.isNull() || m_last.value(window) != got) return;
    if (auto* control = dynamic_cast<FocusTaker*>(got.data())) control->OnGotFocus();
  }

  QHash<QWidget*, QPointer<QWidget>> m_last;
};

}  // namespace

void WatchFocus() {
  static QPointer<FocusWatcher> watcher;
  if (watcher.isNull()) watcher = new FocusWatcher(qApp);
}

}  // namespace velmora::ui
