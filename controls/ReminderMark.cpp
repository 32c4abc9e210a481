// SPDX-License-Identifier: MIT
#include "controls/ReminderMark.h"

#include "forms/Palette.h"
#include "resources/strings.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace velmora {

namespace {

/// A bell in a square of 16 by 16.
QPainterPath Bell() {
  QPainterPath body;
  body.moveTo(8, 2);
  body.cubicTo(11.2, 2, 12.4, 4.4, 12.4, 7);
  body.cubicTo(12.4, 10, 13.2, 11, 14.2, 12);
  body.lineTo(1.8, 12);
  body.cubicTo(2.8, 11, 3.6, 10, 3.6, 7);
  body.cubicTo(3.6, 4.4, 4.8, 2, 8, 2);
  body.closeSubpath();
  QPainterPath bell = body;
  bell.addEllipse(QPointF(8, 1.7), 1.2, 1.2);
  bell.setFillRule(Qt::WindingFill);
  QPainterPath clapper;
  clapper.moveTo(6.2, 13);
  clapper.arcTo(QRectF(6.2, 11.4, 3.6, 3.6), 180, 180);
  clapper.closeSubpath();
  bell.addPath(clapper);
  return bell;
}

constexpr double BellSquare = 16;

}  // namespace

ReminderMark::ReminderMark(QWidget* parent) : QWidget(parent), Control(this) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAccessibleName(strings::reminder::Reminder);
}

void ReminderMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(width(), height());
  painter.translate((width() - side) / 2, (height() - side) / 2);
  painter.scale(side / BellSquare, side / BellSquare);
  painter.fillPath(Bell(), ui::RoleColor(ui::Role::Red));
}

}  // namespace velmora
