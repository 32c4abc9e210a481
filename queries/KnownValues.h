// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace velmora {

/// The values of a text field that a condition can be picked from, in the order in which they were stored: no
/// empty ones, no "*", and of equal neighbours only the first. Throws db::Error when the field has no value
/// list.
[[nodiscard]] QStringList PickableValues(const QString& field);

}  // namespace velmora
