// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace velmora::ui {

/// Fusion, but a control that has the focus always shows it: after a click, after a move by Enter, and on
/// lists and scroll bars, which by themselves show nothing.
class ProgramStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  ProgramStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  /// The border round a screen is narrow: the widest ones are all but as wide as the frame.
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  /// Buttons of dialogs bear no pictures: the program's own have none.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

/// Draws the mark of the focus just inside `rect`.
void DrawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette);

}  // namespace velmora::ui
