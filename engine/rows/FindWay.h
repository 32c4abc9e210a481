// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::db {

/// Which way a search goes through the rows of a recordset.
enum class FindWay { Down, Up };

}  // namespace velmora::db
