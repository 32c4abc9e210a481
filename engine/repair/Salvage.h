// SPDX-License-Identifier: MIT
#pragma once

#include "engine/repair/DamagedPages.h"

#include <functional>
#include <span>

namespace velmora::db {

/// What a column usually holds, to tell the rows of one table from those of another.
enum class Affinity { Any, Text, Whole, Real };

/// A stretch of row ids: above `Above`, up to and with `UpTo`.
struct RowRange {
  std::int64_t Above = 0;
  std::int64_t UpTo = 0;
  [[nodiscard]] static RowRange All();
  [[nodiscard]] bool Holds(std::int64_t rowId) const { return rowId > Above && rowId <= UpTo; }
};

/// A row on its way out of a damaged file.
struct SavedRow {
  RawRow Row;
  /// Nothing when the row's id made no sense where the row was found.
  std::optional<std::int64_t> RowId;
};

/// A table to be saved: what the schema says of it, and where its rows go.
struct SavedTable {
  std::uint32_t Root = 0;
  std::vector<Affinity> Columns;
  std::function<void(const SavedRow&)> Put;
  /// The stretches whose pages were not found where the tree says.
  std::vector<RowRange> Holes;
};

/// Walks the trees of tables in a damaged file and gives out every row that can be read.
///
/// What a page says is believed when it agrees with its neighbours: ids must ascend and lie within what the
/// page above says, and rows must look like the table's. Where a tree breaks off it leaves a hole, and
/// afterwards the pages that no tree has claimed are looked through for those that fit into a hole. Pages on
/// the file's list of free pages are left alone, for they hold rows that were deleted.
class Salvage final {
 public:
  /// The pages must outlive this object.
  explicit Salvage(const DamagedPages& pages);

  /// Gives out the rows of the list of tables alone.
  void SaveSchema(SavedTable& schema);
  /// Gives out the rows of all tables. To be called once, with all tables of the file.
  void Save(std::span<SavedTable> tables);
  /// Whether rows were found that have more columns than their table: its definition is damaged, though it
  /// reads well.
  [[nodiscard]] bool HasMisfits() const;
  /// Whether anything may be missing, or stands in another place than before.
  [[nodiscard]] bool HasLosses() const { return m_hasLosses; }

 private:
  void ClaimFreePages();
  void FindChildren();
  bool Visit(SavedTable& table, std::uint32_t number, RowRange range, int depth);
  bool VisitInner(SavedTable& table, const TreePage& page, RowRange range, int depth);
  bool VisitLeaf(SavedTable& table, const TreePage& page, RowRange range);
  void AddHole(SavedTable& table, RowRange range);
  void SaveStrayPages(std::span<SavedTable> tables);
  [[nodiscard]] SavedTable* OwnerOf(const TreePage& page, std::span<SavedTable> tables, bool heedHoles,
                                    RowRange& range) const;

  const DamagedPages& m_pages;
  std::vector<bool> m_claimed;
  /// Pages that some inner page names: they are no roots.
  std::vector<bool> m_isChild;
  std::vector<std::uint8_t> m_tries;
  /// Pages of rows too long for the table whose tree named them; another table may claim them yet.
  std::vector<std::uint32_t> m_misfits;
  bool m_knowsFreePages = false;
  bool m_hasLosses = false;
};

}  // namespace velmora::db
