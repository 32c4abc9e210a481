// SPDX-License-Identifier: MIT
#include "shell/PicturePreview.h"

#include <QPainter>

namespace velmora {

QPixmap Filling(const QPixmap& picture, const QSize& pixels) {
  const QPixmap scaled = picture.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
  QRect middle(QPoint(), pixels);
  middle.moveCenter(scaled.rect().center());
  return scaled.copy(middle);
}

PicturePreview::PicturePreview(QWidget* parent) : QFrame(parent), Control(this) {
  setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
}

void PicturePreview::SetPicture(const QPixmap& picture) {
  m_picture = picture;
  update();
}

void PicturePreview::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (!HasPicture()) return;
  QPixmap shown = Filling(m_picture, contentsRect().size() * devicePixelRatio());
  shown.setDevicePixelRatio(devicePixelRatio());
  QPainter(this).drawPixmap(contentsRect().topLeft(), shown);
}

}  // namespace velmora
