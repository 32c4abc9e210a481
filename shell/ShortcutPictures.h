// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ImageList.h"

#include <QStringList>

namespace velmora {

/// The pictures that are offered for the shortcut buttons, lstImag, and what each shows in words.
[[nodiscard]] ui::ImageList ShortcutPictures();
[[nodiscard]] QStringList ShortcutPictureNames();

/// Those of the three shortcut buttons, as the long toolbar shows them.
[[nodiscard]] ui::ImageList ShortcutButtonPictures();

}  // namespace velmora
