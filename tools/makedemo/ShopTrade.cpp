// SPDX-License-Identifier: MIT
#include "tools/makedemo/ShopTrade.h"

#include <algorithm>
#include <cmath>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype dateLength = 10;

QDate DateOf(const CsvRow& row, const QString& column) {
  return QDate::fromString(row.value(column).left(dateLength), Qt::ISODate);
}

void Count(Volume& volume, double freight) {
  ++volume.Orders;
  volume.Freight = Rounded(volume.Freight + freight);
}

/// The orders come in the order of their dates.
void Add(ShopTrade& trade, const CsvRow& order, std::vector<int>& daysToShip) {
  const double freight = order.value(u"Freight"_s).toDouble();
  const QDate ordered = DateOf(order, u"OrderDate"_s);
  const QDate shipped = DateOf(order, u"ShippedDate"_s);
  Count(trade.All, freight);
  Count(trade.OfYear[ordered.year()], freight);
  Count(trade.SoldBy[order.value(u"EmployeeID"_s).toInt()], freight);
  Count(trade.ShippedBy[order.value(u"ShipVia"_s).toInt()], freight);
  ++trade.OrdersInMonth.at(static_cast<std::size_t>(ordered.month() - 1));
  const bool isFirst = trade.All.Orders == 1;
  if (isFirst) trade.First = ordered;
  if (!isFirst)
    trade.LongestPause = std::max(trade.LongestPause, static_cast<int>(trade.Last.daysTo(ordered)));
  trade.Last = ordered;
  trade.HighestFreight = std::max(trade.HighestFreight, freight);
  trade.LowestFreight = isFirst ? freight : std::min(trade.LowestFreight, freight);
  if (shipped.isValid()) {
    daysToShip.push_back(static_cast<int>(ordered.daysTo(shipped)));
    if (shipped > DateOf(order, u"RequiredDate"_s)) ++trade.LateDeliveries;
  }
  trade.LastOrder = order;
}

int Mean(const std::vector<int>& days) {
  if (days.empty()) return 0;
  int sum = 0;
  for (const int day : days) sum += day;
  return static_cast<int>(std::lround(static_cast<double>(sum) / static_cast<double>(days.size())));
}

}  // namespace

QHash<QString, ShopTrade> TradeOfShops(const std::vector<CsvRow>& orders) {
  std::vector<CsvRow> sorted = orders;
  std::ranges::stable_sort(sorted, {}, [](const CsvRow& row) { return row.value(u"OrderDate"_s); });
  QHash<QString, ShopTrade> trades;
  QHash<QString, std::vector<int>> daysToShip;
  for (const CsvRow& order : sorted) {
    const QString code = order.value(u"CustomerID"_s);
    Add(trades[code], order, daysToShip[code]);
  }
  for (auto trade = trades.begin(); trade != trades.end(); ++trade)
    trade->DaysToShip = Mean(daysToShip.value(trade.key()));
  return trades;
}

int Busiest(const QHash<int, Volume>& volumes) {
  QList<int> numbers = volumes.keys();
  std::ranges::sort(numbers);
  const auto most =
      std::ranges::max_element(numbers, {}, [&volumes](int number) { return volumes.value(number).Orders; });
  return most == numbers.end() ? 0 : *most;
}

double Rounded(double amount) { return std::round(amount * 100) / 100; }

}  // namespace velmora::demo
