// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/Screen.h"
#include "forms/TextBox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace velmora::test {

/// The open screen of that class; null when there is none.
template <typename T>
[[nodiscard]] T* OpenScreen() {
  for (ui::Screen* screen : ui::Forms()) {
    if (auto* found = dynamic_cast<T*>(screen)) return found;
  }
  return nullptr;
}

/// Does what opens a dialog, and works on it when it is the active window; a dialog that is still open then
/// is closed. Where another one comes instead, the test fails and closes that.
template <typename T>
void InDialog(const std::function<void()>& open, const std::function<void(T&)>& work) {
  constexpr int patience = 10000;  // milliseconds
  bool came = false;
  QElapsedTimer waited;
  waited.start();
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
    const QPointer<T> dialog = OpenScreen<T>();
    came = dialog && QApplication::activeWindow() == dialog;
    if (!came && waited.elapsed() < patience) return;
    poll.stop();
    if (came) work(*dialog);
    if (!came) ui::Forms().last()->Unload();
    if (dialog && !dialog->IsClosing()) dialog->Unload();
  });
  poll.start(0);
  open();
  EXPECT_TRUE(came) << "no dialog came";
}

template <typename T>
[[nodiscard]] T& Find(const QWidget& screen, const QString& name) {
  T* found = screen.findChild<T*>(name);
  if (found == nullptr) throw std::runtime_error("no control " + name.toStdString());
  return *found;
}

/// A click as a person makes it: all that went before is over.
inline void Click(QWidget& widget) {
  QApplication::processEvents();
  QTest::mouseClick(&widget, Qt::LeftButton);
}
inline void Press(const QWidget& screen, const QString& button) { Click(Find<QWidget>(screen, button)); }
/// Clicks a line of a list, wherever it has to be scrolled.
inline void ClickLine(ui::ListBox& list, int line) {
  QApplication::processEvents();
  list.SetTopIndex(line);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualRect(list.model()->index(line, 0)).center());
}
/// Types over whatever a box holds.
inline void Type(ui::TextBox& box, const QString& text) {
  box.SetFocus();
  box.selectAll();
  if (text.isEmpty()) {
    QTest::keyClick(&box, Qt::Key_Delete);
  } else {
    QTest::keyClicks(&box, text);
  }
}
[[nodiscard]] inline QStringList Lines(const ui::ListBox& list) {
  QStringList lines;
  for (int line = 0; line < list.ListCount(); ++line) lines += list.List(line);
  return lines;
}
/// The names of the controls that the Tab key reaches from the one with the focus, until it comes back.
[[nodiscard]] inline QStringList TabStops() {
  QStringList reached;
  const QWidget* const first = QApplication::focusWidget();
  for (int steps = 0; steps < 100 && QApplication::focusWidget() != nullptr; ++steps) {
    reached += QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    if (QApplication::focusWidget() == first) break;
  }
  return reached;
}

}  // namespace velmora::test
