// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

/// How many fields a page of the wizard gets when the user asks for `wanted`: page 1 keeps one, and the file
/// never holds more than it may. `onPage` and `inFile` count the rows that are there now.
[[nodiscard]] int GrantedFields(int wanted, int page, int onPage, int inFile);

}  // namespace velmora
