// SPDX-License-Identifier: MIT
#include "cards/CardNumbers.h"

#include "base/system/Failures.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "cards/Contacts.h"
#include "frame/Session.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr std::int64_t LargestNumber = std::numeric_limits<std::int32_t>::max();
/// How many numbers the search for a free one takes at a time: these, and later an eighth of what is behind
/// it, so that it never counts much more than the numbers below the free one.
constexpr std::int64_t FirstStretch = 1024;

Cards OpenCards() { return Cards(Global().File()); }

/// The lowest free number above `low`, below which none is free, in a stretch up to `high` that holds `cards`
/// cards and has room for more. Numbers are unique, so that a stretch is full when it holds as many cards as
/// numbers; each turn counts a stretch half as long as the one before.
std::int64_t FirstGap(const Cards& stored, std::int64_t low, std::int64_t high, std::int64_t cards) {
  while (cards > 0) {
    // Most files have no gap: then their cards are the first numbers, and the highest tells so.
    if (stored.NearestBelow(high + 1) == low + cards) return low + cards + 1;
    const std::int64_t middle = low + (std::min(high, low + cards + 1) - low) / 2;
    const std::int64_t lower = stored.CountIn(low, middle);
    if (lower == middle - low) {
      cards -= lower;
      low = middle;
    } else {
      cards = lower;
      high = middle;
    }
  }
  return low + 1;
}

}  // namespace

std::int32_t NextCardNumber() {
  std::int32_t next = 0;
  Trap([&] {
    const auto highest = OpenCards().Highest();
    next = db::Value(highest ? std::int64_t{*highest} + 1 : std::int64_t{1}).Long();
  });
  return next;
}

std::int32_t LowestFreeNumber() {
  std::int32_t lowest = 0;
  Trap([&] {
    const Cards stored = OpenCards();
    std::int64_t low = 0;
    std::int64_t high = FirstStretch;
    std::int64_t cards = stored.CountIn(low, high);
    while (cards == high - low && high < LargestNumber) {
      low = high;
      high = std::min(low + std::max(FirstStretch, low / 8), LargestNumber);
      cards = stored.CountIn(low, high);
    }
    lowest = db::Value(FirstGap(stored, low, high, cards)).Long();
  });
  return lowest;
}

bool CardExists(std::int32_t number) {
  bool exists = false;
  Trap([&] { exists = OpenCards().Has(number); });
  return exists;
}

QString CardName(std::int32_t number) {
  QString name;
  Trap([&] {
    const db::Recordset rows = OpenCards().CardOf(number);
    if (!rows.AtEnd()) name = rows[MainFieldName()].Text();
  });
  return name;
}

std::optional<std::int32_t> NearestCard(std::int32_t number, std::int32_t current) {
  const Cards cards = OpenCards();
  if (cards.Has(number)) return number;
  if (number == current) return std::nullopt;
  const bool upwards = number > current;
  const auto ahead = upwards ? cards.NearestAbove(number) : cards.NearestBelow(number);
  if (ahead) return ahead;
  return upwards ? cards.NearestBelow(number) : cards.NearestAbove(number);
}

std::optional<std::int32_t> CardToShow(std::int32_t number, std::int32_t current) {
  const auto nearest = NearestCard(number, current);
  return nearest ? nearest : OpenCards().FirstStored();
}

void DeleteCard(std::int32_t number) {
  const Cards cards = OpenCards();
  cards.Delete(number);
  DeleteContacts(number);
  cards.DeleteCallsAndPrices(number);
}

}  // namespace velmora
