// SPDX-License-Identifier: MIT
#include "cards/CardNumbers.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr std::int64_t LargestNumber = std::numeric_limits<std::int32_t>::max();
/// How many numbers the search for a free one takes at a time: these, and later an eighth of what is behind
/// it, so that it never counts much more than the numbers below the free one.
constexpr std::int64_t FirstStretch = 1024;

db::Recordset Open(const QString& statement) { return Global().File().OpenRecordset(statement); }

QString Text(std::int64_t number) { return QString::number(number); }

std::optional<std::int32_t> FirstNumber(const QString& statement) {
  const db::Recordset rows = Open(statement);
  if (rows.AtEnd()) return std::nullopt;
  return rows[schema::CardNumber.View()].Long();
}

std::optional<std::int32_t> NearestAbove(std::int32_t number) {
  return FirstNumber(u"Select [Index@] from MainData WHERE [Index@] > "_s + Text(number) +
                     u" ORDER BY [Index@]"_s);
}

std::optional<std::int32_t> NearestBelow(std::int64_t number) {
  return FirstNumber(u"Select [Index@] from MainData WHERE [Index@] < "_s + Text(number) +
                     u" ORDER BY [Index@] DESC"_s);
}

/// How many cards have a number above `low` and not above `high`: a walk over that stretch of the index.
std::int64_t CardsIn(std::int64_t low, std::int64_t high) {
  return static_cast<std::int64_t>(Open(u"Select Count(*) from MainData WHERE [Index@] > "_s + Text(low) +
                                        u" AND [Index@] <= "_s + Text(high))
                                       .At(0)
                                       .Number());
}

/// The lowest free number above `low`, below which none is free, in a stretch up to `high` that holds `cards`
/// cards and has room for more. Numbers are unique, so that a stretch is full when it holds as many cards as
/// numbers; each turn counts a stretch half as long as the one before.
std::int64_t FirstGap(std::int64_t low, std::int64_t high, std::int64_t cards) {
  while (cards > 0) {
    // Most files have no gap: then their cards are the first numbers, and the highest tells so.
    if (NearestBelow(high + 1) == low + cards) return low + cards + 1;
    const std::int64_t middle = low + (std::min(high, low + cards + 1) - low) / 2;
    const std::int64_t lower = CardsIn(low, middle);
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
    const auto highest = FirstNumber(u"Select [Index@] from MainData ORDER BY [Index@] DESC"_s);
    next = db::Value(highest ? std::int64_t{*highest} + 1 : std::int64_t{1}).Long();
  });
  return next;
}

std::int32_t LowestFreeNumber() {
  std::int32_t lowest = 0;
  Trap([&] {
    std::int64_t low = 0;
    std::int64_t high = FirstStretch;
    std::int64_t cards = CardsIn(low, high);
    while (cards == high - low && high < LargestNumber) {
      low = high;
      high = std::min(low + std::max(FirstStretch, low / 8), LargestNumber);
      cards = CardsIn(low, high);
    }
    lowest = db::Value(FirstGap(low, high, cards)).Long();
  });
  return lowest;
}

bool CardExists(std::int32_t number) {
  bool exists = false;
  Trap([&] { exists = !Open(u"Select * from MainData Where [Index@] = "_s + Text(number)).AtEnd(); });
  return exists;
}

QString CardName(std::int32_t number) {
  QString name;
  Trap([&] {
    const db::Recordset rows = Open(u"Select * from MainData where [Index@] = "_s + Text(number));
    if (!rows.AtEnd()) name = rows[MainFieldName()].Text();
  });
  return name;
}

std::optional<std::int32_t> NearestCard(std::int32_t number, std::int32_t current) {
  const auto asked = FirstNumber(u"Select [Index@] from MainData WHERE [Index@] = "_s + Text(number));
  if (asked || number == current) return asked;
  const bool upwards = number > current;
  const auto ahead = upwards ? NearestAbove(number) : NearestBelow(number);
  if (ahead) return ahead;
  return upwards ? NearestBelow(number) : NearestAbove(number);
}

std::optional<std::int32_t> FirstStoredCard() { return FirstNumber(u"Select * from MainData"_s); }

std::optional<std::int32_t> CardToShow(std::int32_t number, std::int32_t current) {
  const auto nearest = NearestCard(number, current);
  return nearest ? nearest : FirstStoredCard();
}

void DeleteCard(std::int32_t number) {
  db::Database& file = Global().File();
  for (const QStringView statement :
       {u"Delete * from MainData WHERE [Index@] = ", u"Delete * from Agent WHERE [Index] = ",
        u"Delete * from Telefon WHERE [Index] = ", u"Delete * from PriceList WHERE [Index] = "}) {
    file.Execute(statement.toString() + Text(number));
  }
}

}  // namespace velmora
