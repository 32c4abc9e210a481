// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

/// Where a row of the wizard stands, in twips.
struct RowPlace {
  int Left = 0;
  int Top = 0;
  friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// The place of the row-th row of a page, counted from 1: three columns of seven.
[[nodiscard]] RowPlace PlaceOfRow(int row);

/// How many fields a page gets when the user asks for `wanted`: page 1 keeps one, and the file never holds
/// more than it may. `onPage` and `inFile` count the rows that are there now.
[[nodiscard]] int GrantedFields(int wanted, int page, int onPage, int inFile);

}  // namespace velmora
