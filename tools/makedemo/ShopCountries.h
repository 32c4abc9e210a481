// SPDX-License-Identifier: MIT
#pragma once

#include "tools/makedemo/Csv.h"

#include <QString>

namespace velmora::demo {

/// What follows from where a shop is.
struct ShopCountry {
  QString Part;
  QString Language;
  QString Currency;
  int HoursFromLondon = 0;
  /// Whose names people bear there, by their locale; empty where no list of them is at hand.
  QString Names;
};

[[nodiscard]] ShopCountry CountryOfShop(const CsvRow& shop);

/// What kind of shop it is, by what its name says.
[[nodiscard]] QString KindOfShop(const QString& name);

}  // namespace velmora::demo
