// SPDX-License-Identifier: MIT
#pragma once

#include "tools/makedemo/Csv.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <array>
#include <vector>

namespace velmora::demo {

/// Orders and what their freight cost.
struct Volume {
  int Orders = 0;
  double Freight = 0;
};

/// What the orders of one shop tell of it.
struct ShopTrade {
  Volume All;
  QHash<int, Volume> OfYear;
  /// By the number of the person who sold, and of the one who shipped.
  QHash<int, Volume> SoldBy;
  QHash<int, Volume> ShippedBy;
  std::array<int, 12> OrdersInMonth{};
  QDate First;
  QDate Last;
  double HighestFreight = 0;
  double LowestFreight = 0;
  /// The days without an order, at most.
  int LongestPause = 0;
  int LateDeliveries = 0;
  /// From the order to the shipping, in the mean.
  int DaysToShip = 0;
  /// The row of the last order, for where it went.
  CsvRow LastOrder;
};

/// The trade of every shop that ordered anything, by its code.
[[nodiscard]] QHash<QString, ShopTrade> TradeOfShops(const std::vector<CsvRow>& orders);

/// The number that has the most orders; the lowest of equal ones.
[[nodiscard]] int Busiest(const QHash<int, Volume>& volumes);

/// An amount with two digits behind the point.
[[nodiscard]] double Rounded(double amount);

}  // namespace velmora::demo
