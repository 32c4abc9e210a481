// SPDX-License-Identifier: MIT
#pragma once

#include "shell/RtfText.h"

class QTextEdit;

namespace velmora {

/// Shows the paragraphs in place of what was there. Plain text has the size of the box's own font, and the
/// rest goes by it.
void ShowRtf(QTextEdit& box, const QList<RtfParagraph>& paragraphs);

}  // namespace velmora
