// SPDX-License-Identifier: MIT
#include "forms/ToolPicture.h"

#include "forms/Palette.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace velmora::ui {

namespace {

/// What a symbol's square leaves free of the picture on each side: 2 of 26 pixels, 4 of 52.
constexpr double symbolMargin = 1.0 / 13;
constexpr double faceRadius = 3;

struct Face {
  QColor Top;
  QColor Bottom;
  QColor Edge;
};

Face FaceOf(PictureState state) {
  const QColor plain = RoleColor(Role::ButtonFace);
  if (state == PictureState::Hover) {
    return IsDarkLook() ? Face{plain.lighter(175), plain.lighter(135), plain.lighter(230)}
                        : Face{plain.lighter(107), plain.darker(103), plain.darker(145)};
  }
  return IsDarkLook() ? Face{plain.darker(170), plain.darker(135), plain.darker(230)}
                      : Face{plain.darker(128), plain.darker(112), plain.darker(175)};
}

void DrawFace(QPainter& painter, const QRectF& rect, PictureState state) {
  if (state == PictureState::Normal) return;
  const Face face = FaceOf(state);
  QLinearGradient fill(rect.topLeft(), rect.bottomLeft());
  fill.setColorAt(0, face.Top);
  fill.setColorAt(1, face.Bottom);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(face.Edge);
  painter.setBrush(fill);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), faceRadius, faceRadius);
}

/// Keeps the last drawing, which is good for one size and one look.
class ToolPictureEngine final : public QIconEngine {
 public:
  ToolPictureEngine(SymbolPainter symbol, PictureState state) : m_symbol(std::move(symbol)), m_state(state) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const double sharpness = painter->device()->devicePixelRatio();
    if (m_drawn.deviceIndependentSize() != rect.size() || m_drawn.devicePixelRatio() != sharpness ||
        m_drawnDark != IsDarkLook()) {
      Draw(rect.size(), sharpness);
    }
    painter->drawPixmap(rect.topLeft(), m_drawn);
  }

  [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect({}, size), mode, state);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new ToolPictureEngine(m_symbol, m_state); }

 private:
  void Draw(const QSize& size, double sharpness) {
    m_drawn = QPixmap(size * sharpness);
    m_drawn.setDevicePixelRatio(sharpness);
    m_drawn.fill(Qt::transparent);
    m_drawnDark = IsDarkLook();
    QPainter painter(&m_drawn);
    const QRectF whole({}, size);
    DrawFace(painter, whole, m_state);
    const int side = std::min(size.width(), size.height());
    const int margin = qRound(side * symbolMargin);
    QRectF square(0, 0, side - 2 * margin, side - 2 * margin);
    square.moveTopLeft({(size.width() - square.width()) / 2, (size.height() - square.height()) / 2});
    // A symbol that is pressed in moves away from the eye.
    if (m_state == PictureState::Pressed) square.translate(1, 1);
    m_symbol(painter, square);
  }

  SymbolPainter m_symbol;
  PictureState m_state;
  QPixmap m_drawn;
  bool m_drawnDark = false;
};

}  // namespace

QIcon ToolPicture(SymbolPainter symbol, PictureState state) {
  // The icon owns its engine.
  return QIcon(new ToolPictureEngine(std::move(symbol), state));
}

}  // namespace velmora::ui
