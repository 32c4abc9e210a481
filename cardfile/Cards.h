// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

/// The cards of a file, which must outlive it. Every statement on their table stands here, but those of the
/// stored queries, of the searches' lists and of the file's making. All throw db::Error.
class Cards final {
 public:
  explicit Cards(db::Database& file) : m_file(file) {}

  /// Costs one step, however many cards there are.
  [[nodiscard]] bool IsEmpty() const;
  /// The row of the card of that number, at its end when there is none.
  [[nodiscard]] db::Recordset CardOf(std::int32_t number) const;
  [[nodiscard]] bool Has(std::int32_t number) const { return !CardOf(number).AtEnd(); }
  /// No row: for AddNew.
  [[nodiscard]] db::Recordset ForNewCard() const;

  /// The number of the card that was stored first.
  [[nodiscard]] std::optional<std::int32_t> FirstStored() const;
  [[nodiscard]] std::optional<std::int32_t> Highest() const;
  /// The nearest number above or below another; each is one step in the index.
  [[nodiscard]] std::optional<std::int32_t> NearestAbove(std::int64_t number) const;
  [[nodiscard]] std::optional<std::int32_t> NearestBelow(std::int64_t number) const;
  /// How many cards have a number above `low` and not above `high`: a walk over that stretch of the index.
  [[nodiscard]] std::int64_t CountIn(std::int64_t low, std::int64_t high) const;

  /// The cards that have exactly this text in a column, in the order of storing.
  [[nodiscard]] db::Recordset With(const QString& column, const QString& text) const;
  /// The cards that have this pattern somewhere in a column.
  [[nodiscard]] db::Recordset Containing(const QString& column, const QString& pattern) const;

  /// Deletes the card alone.
  void Delete(std::int32_t number) const;
  /// Deletes the rows of a card in the tables of calls and prices, which nothing else here uses.
  void DeleteCallsAndPrices(std::int32_t number) const;

 private:
  db::Database& m_file;
};

}  // namespace velmora
