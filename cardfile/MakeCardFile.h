// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

namespace velmora {

/// Makes the card file of that design at the path and leaves it open as the session's card file. Throws
/// db::Error at the first step that fails, for instance when the file exists or two columns get one name;
/// what was made until then stays, on the disk and in the session.
void MakeCardFile(const QString& path, const CardDesign& design);

}  // namespace velmora
