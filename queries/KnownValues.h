// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace velmora {

// The values that the user keeps for a text field, in the order in which they were stored. Both throw
// db::Error when the field has no value list.

/// What a condition can be picked from: no blank values, no "*", and of equal neighbours only the first.
[[nodiscard]] QStringList PickableValues(const QString& field);
/// All of them.
[[nodiscard]] QStringList StoredValues(const QString& field);

}  // namespace velmora
