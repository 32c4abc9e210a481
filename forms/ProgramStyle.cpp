// SPDX-License-Identifier: MIT
#include "forms/ProgramStyle.h"

#include "forms/Palette.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor darkTitle(0x2b, 0x4a, 0x78);

// Fusion marks the focus only while the window was last worked by keys. The option is the caller's for this
// one drawing, of a type that we do not know, so its state is set and put back instead of copied.
class AsIfByKeys final {
 public:
  explicit AsIfByKeys(const QStyleOption* option) : m_option(const_cast<QStyleOption*>(option)) {
    if (m_option == nullptr) return;
    m_state = m_option->state;
    if (m_state.testFlag(QStyle::State_HasFocus)) m_option->state |= QStyle::State_KeyboardFocusChange;
  }
  ~AsIfByKeys() {
    if (m_option != nullptr) m_option->state = m_state;
  }
  AsIfByKeys(const AsIfByKeys&) = delete;
  AsIfByKeys& operator=(const AsIfByKeys&) = delete;

 private:
  QStyleOption* m_option;
  QStyle::State m_state;
};

/// Fusion draws the rims of boxes darker than the window, which nobody sees on a dark one.
void BrightenRim(QPainter& painter, QStyle::PrimitiveElement element, const QStyleOption& option) {
  const QPalette& colors = option.palette;
  if (option.state.testFlag(QStyle::State_HasFocus)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(colors.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  const QRectF rim = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  constexpr double corner = 2;
  if (element == QStyle::PE_IndicatorRadioButton) {
    painter.drawEllipse(rim);
  } else {
    painter.drawRoundedRect(rim, corner, corner);
  }
  painter.restore();
}

bool HasRim(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_IndicatorCheckBox ||
         element == QStyle::PE_IndicatorRadioButton;
}

bool HasFrame(const QStyleOption& option) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  return frame == nullptr || frame->frameShape != QFrame::NoFrame;
}

bool HasFocus(const QStyleOption* option) { return option->state.testFlag(QStyle::State_HasFocus); }

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(u"Fusion"_s) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  const AsIfByKeys byKeys(option);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (HasRim(element) && IsDarkLook()) BrightenRim(*painter, element, *option);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const AsIfByKeys byKeys(option);
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element != CE_ShapedFrame || qobject_cast<const QAbstractScrollArea*>(widget) == nullptr) return;
  if (HasFocus(option)) {
    DrawFocusFrame(*painter, option->rect, option->palette);
  } else if (IsDarkLook() && HasFrame(*option)) {
    BrightenRim(*painter, PE_Frame, *option);
  }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  if (const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
      title != nullptr && IsDarkLook()) {
    // The colour of choices is too bright for a bar across a dark window, and its title is white.
    QStyleOptionTitleBar dimmed(*title);
    dimmed.palette.setColor(QPalette::Highlight, darkTitle);
    QProxyStyle::drawComplexControl(control, &dimmed, painter, widget);
    return;
  }
  const AsIfByKeys byKeys(option);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ScrollBar && HasFocus(option)) DrawFocusFrame(*painter, option->rect, option->palette);
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  constexpr int borderOfScreen = 2;
  if (metric == PM_MdiSubWindowFrameWidth) return borderOfScreen;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

void DrawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette) {
  painter.save();
  painter.setPen(palette.color(QPalette::Active, QPalette::Highlight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

}  // namespace velmora::ui
