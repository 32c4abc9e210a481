// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>
#include <QSet>

class QKeyEvent;
class QWidget;

namespace velmora::ui {

/// Keeps keys that the user meant for something else from answering a question that has just come up: every
/// key in its first 400 ms by the program's clock, and the repeats of keys that were down before. Mouse and
/// assistive technology are not held.
class KeyHold final : public QObject {
 public:
  explicit KeyHold(QWidget& question);
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  [[nodiscard]] bool IsEarly() const;
  [[nodiscard]] bool HoldsPress(const QKeyEvent& key);
  [[nodiscard]] bool HoldsRelease(const QKeyEvent& key);

  QWidget& m_question;
  QDateTime m_came;
  /// The keys that went down in the question and were let through.
  QSet<int> m_taken;
};

}  // namespace velmora::ui
