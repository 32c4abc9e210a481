// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Control.h"

#include <QWidget>

namespace velmora {

/// A face between buttons that step its parts: what the date and the time entries share. No button keeps the
/// focus: it stands on an empty control, told to assistive technology by what the face shows, and the mark
/// of the focus goes round the whole. By keys: the arrows make a short step, with Ctrl a middle one, the page
/// keys a long one; Home goes back to where the control begins, the space bar is a click on the face.
class SpinFace : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  enum class Stride { Short, Middle, Long };

  SpinFace(QWidget* parent, const ui::Place& place);

  /// One step by the user; false when there is none to make.
  virtual bool Step(Stride stride, int count) = 0;
  virtual void Reset() = 0;
  virtual void FaceClicked() {}

  /// A button with a text, or one with an arrow up or down.
  [[nodiscard]] ui::SSCommand* AddButton(const QString& name, const ui::Place& place);
  [[nodiscard]] ui::SSCommand* AddArrow(const QString& name, const QString& accessibleName,
                                        Qt::ArrowType arrow, const ui::Place& place);
  /// What assistive technology reads of the control.
  void SetSpoken(const QString& text) { m_cmdTemp->setAccessibleName(text); }

  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* m_cmdTemp;
};

}  // namespace velmora
