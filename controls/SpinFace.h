// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Control.h"

#include <QWidget>

namespace velmora {

/// A face between buttons that step its parts: what the date and the time entries share. No button keeps the
/// focus: it stands on an empty control, told to assistive technology by what the face shows, and the mark
/// of the focus goes round the whole.
class SpinFace : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  SpinFace(QWidget* parent, const ui::Place& place);

  /// A button with a text, or one with an arrow up or down.
  [[nodiscard]] ui::SSCommand* AddButton(const QString& name, const ui::Place& place);
  [[nodiscard]] ui::SSCommand* AddArrow(const QString& name, const QString& accessibleName,
                                        Qt::ArrowType arrow, const ui::Place& place);
  /// What assistive technology reads of the control.
  void SetSpoken(const QString& text) { m_cmdTemp->setAccessibleName(text); }

  bool eventFilter(QObject* target, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* m_cmdTemp;
};

}  // namespace velmora
