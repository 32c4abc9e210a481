// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora {

/// The folder of the samples that came with the program; its user may not be able to write there.
[[nodiscard]] QString SamplesOfTheProgram();
/// The folder of the user's own copies of them, which need not exist yet.
[[nodiscard]] QString SamplesOfTheUser();

/// Copies each sample of one folder that the other one does not have; what is there already stays as its user
/// has changed it. A copy has the rights of a new file of the user's, and bears its name only when it is
/// whole and on the disk. False when one is missing in the end, or there was none to copy and none is there.
[[nodiscard]] bool CopyMissingSamples(const QString& from, const QString& to);

}  // namespace velmora
