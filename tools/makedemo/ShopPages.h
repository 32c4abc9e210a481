// SPDX-License-Identifier: MIT
#pragma once

#include "tools/makedemo/CardRows.h"
#include "tools/makedemo/SampleFile.h"
#include "tools/makedemo/ShopCountries.h"
#include "tools/makedemo/ShopTrade.h"

#include <vector>

namespace velmora::demo {

/// A shop as the tables tell of it.
struct Shop {
  CsvRow Row;
  Contact Person;
  ShopCountry Country;
  ShopTrade Trade;
};

/// The full names of those who sell and of those who ship, by their numbers.
struct ShopNames {
  QHash<int, QString> Sellers;
  QHash<int, QString> Shippers;
};

/// A hundred fields on ten pages. The shops and the names must outlive them.
[[nodiscard]] std::vector<SamplePage> ShopPages(const std::vector<Shop>& shops, const ShopNames& names);

/// Of the visits on the last page: the day of the next one.
[[nodiscard]] QDate NextVisit(std::size_t place);

}  // namespace velmora::demo
