// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QList>

namespace velmora::ui {

/// Pictures told apart by their number, from 1 on. Copies share their pictures.
class ImageList final {
 public:
  void Add(const QIcon& image) { m_images.append(image); }
  [[nodiscard]] int ListCount() const { return static_cast<int>(m_images.size()); }
  /// Throws std::out_of_range when there is no picture of that number.
  [[nodiscard]] const QIcon& ListImage(int number) const;

 private:
  QList<QIcon> m_images;
};

}  // namespace velmora::ui
