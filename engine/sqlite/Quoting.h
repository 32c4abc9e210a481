// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// A name in quotes for SQLite: the one place where names are quoted.
[[nodiscard]] QString QuoteName(QStringView name);
/// A text as a literal for SQLite.
[[nodiscard]] QString QuoteText(QStringView text);

}  // namespace velmora::db
