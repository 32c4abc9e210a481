// SPDX-License-Identifier: MIT
#include "forms/ImageList.h"

#include <stdexcept>

namespace velmora::ui {

const QIcon& ImageList::ListImage(int number) const {
  if (number < 1 || number > ListCount()) throw std::out_of_range("image list has no image of that number");
  return m_images.at(number - 1);
}

}  // namespace velmora::ui
