// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace velmora::demo {

/// A row of a table by the names of its columns.
using CsvRow = QHash<QString, QString>;

/// Reads UTF-8 text of comma-separated values whose first line names the columns. Fields may stand in double
/// quotes, doubled within; line ends are LF or CR LF.
[[nodiscard]] std::vector<CsvRow> ReadCsv(const QString& text);

}  // namespace velmora::demo
