// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// Notes in a compacted copy which state of it that is, so that it can be told later whether anything has
/// been changed since. A file of another tool, which has nothing of ours in it, stays without.
void MarkCompacted(const QString& path);

/// Whether nobody, another tool neither, has changed the file since its last compaction: another one would
/// give nothing back. False as well for a file that can't be read.
[[nodiscard]] bool IsCompacted(const QString& path);

}  // namespace velmora::db
