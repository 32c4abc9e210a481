// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>

namespace velmora::ui {

/// A text on a screen; always plain, so a user's text shows as it is. A single line that is too long for its
/// place ends in an ellipsis and tells the whole text as its tool tip.
class Label : public QLabel, public Control {
  Q_OBJECT

 public:
  explicit Label(QWidget* parent);
  [[nodiscard]] QString Caption() const { return text(); }
  void SetCaption(const QString& caption) { setText(caption); }

 Q_SIGNALS:
  void Click();
  void DblClick();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] bool IsCut() const;
};

/// A framed text that the user cannot edit.
class SSPanel : public Label {
  Q_OBJECT

 public:
  explicit SSPanel(QWidget* parent);
};

/// A frame round a group of controls, with a caption.
class GroupFrame : public QGroupBox, public Control {
  Q_OBJECT

 public:
  explicit GroupFrame(QWidget* parent);
  [[nodiscard]] QString Caption() const { return m_caption; }
  void SetCaption(const QString& caption);

 private:
  QString m_caption;
};

/// A horizontal line that parts groups of controls.
class Line : public QFrame, public Control {
  Q_OBJECT

 public:
  explicit Line(QWidget* parent);
};

}  // namespace velmora::ui
