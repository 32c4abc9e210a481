// SPDX-License-Identifier: MIT
#pragma once

#include "forms/MemoBox.h"

namespace velmora {

/// A text of the program's own on one of its screens: as large as the text, without a frame, and not to be
/// edited, but the Tab key stops there, so that it can be read and copied without the mouse. `spoken` says
/// what it is.
[[nodiscard]] ui::MemoBox* NewFixedText(QWidget* parent, const QString& name, const QString& text,
                                        const QString& spoken);

/// A text with CR LF as its line breaks, as labels take it.
[[nodiscard]] QString WithPlainBreaks(const QString& text);

}  // namespace velmora
