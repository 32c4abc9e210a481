// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QAbstractButton>
#include <QIcon>

namespace velmora {

/// A button of a toolbar that is nothing but a picture. The mouse gives it no focus; once it has it by other
/// means, it marks it, tells its tip, and takes keys.
class PictureBox final : public QAbstractButton, public ui::Control {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent);

  [[nodiscard]] const QIcon& Picture() const { return m_picture; }
  void SetPicture(const QIcon& picture);

 Q_SIGNALS:
  /// The pointer moved over it, or while it is held down.
  void Move();
  void Down();
  void Up();
  /// Pressed and released, or Enter or the space bar. Comes after Up.
  void Click();
  /// An arrow key, Home or End.
  void MoveFocus(int key);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QIcon m_picture;
};

}  // namespace velmora
