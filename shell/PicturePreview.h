// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QFrame>
#include <QPixmap>

namespace velmora {

/// A picture made to fill a place of that many pixels in its own shape: what sticks out is cut on both sides.
[[nodiscard]] QPixmap Filling(const QPixmap& picture, const QSize& pixels);

/// A frame that shows a picture as a background does.
class PicturePreview final : public QFrame, public ui::Control {
  Q_OBJECT
  Q_PROPERTY(bool hasPicture READ HasPicture)

 public:
  explicit PicturePreview(QWidget* parent);
  [[nodiscard]] const QPixmap& Picture() const { return m_picture; }
  [[nodiscard]] bool HasPicture() const { return !m_picture.isNull(); }
  /// A null picture empties it.
  void SetPicture(const QPixmap& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_picture;
};

}  // namespace velmora
