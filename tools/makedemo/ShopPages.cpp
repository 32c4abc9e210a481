// SPDX-License-Identifier: MIT
#include "tools/makedemo/ShopPages.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int goodCustomer = 15;
constexpr int smallCustomer = 5;
constexpr double daysOfYear = 365.25;

/// The table of orders has hyphens where apostrophes were.
QString WithApostrophes(QString text) {
  static const QRegularExpression possessive(u"-(s\\b|$)"_s);
  static const QRegularExpression article(u"\\b([ld])-(?=\\p{Lu})"_s,
                                          QRegularExpression::UseUnicodePropertiesOption);
  return text.replace(possessive, u"’\\1"_s).replace(article, u"\\1’"_s);
}

/// Makes the fields of the pages: each takes its value from a shop.
class Pages final {
 public:
  Pages(const std::vector<Shop>& shops, const ShopNames& names) : m_shops(shops), m_names(names) {}

  [[nodiscard]] SamplePage Address() const;
  [[nodiscard]] SamplePage Person() const;
  [[nodiscard]] SamplePage Trade() const;
  [[nodiscard]] SamplePage Years() const;
  [[nodiscard]] SamplePage Months() const;
  [[nodiscard]] SamplePage Sellers() const;
  [[nodiscard]] SamplePage Shipping() const;
  [[nodiscard]] SamplePage Delivery() const;
  [[nodiscard]] SamplePage Terms() const;
  [[nodiscard]] SamplePage Visits() const;

 private:
  template <typename Of>
  [[nodiscard]] SampleField Field(const QString& name, FieldKind kind, Of of) const {
    return {name, kind, [&shops = m_shops, of](std::size_t place) { return db::Value(of(shops.at(place))); }};
  }
  template <typename Of>
  [[nodiscard]] SampleField Text(const QString& name, Of of) const {
    return Field(name, FieldKind::Text, [of](const Shop& shop) { return Entry(of(shop)); });
  }
  template <typename Of>
  [[nodiscard]] SampleField Number(const QString& name, Of of) const {
    return Field(name, FieldKind::Number, of);
  }
  template <typename Of>
  [[nodiscard]] SampleField YesNo(const QString& name, Of of) const {
    return Field(name, FieldKind::YesNo, of);
  }
  template <typename Of>
  [[nodiscard]] SampleField Date(const QString& name, Of of) const {
    return Field(name, FieldKind::Date, of);
  }
  /// A column of the table of customers, and of the last order's row.
  [[nodiscard]] SampleField Column(const QString& name, const QString& column) const {
    return Text(name, [column](const Shop& shop) { return shop.Row.value(column); });
  }
  [[nodiscard]] SampleField LastOrder(const QString& name, const QString& column) const {
    return Text(name,
                [column](const Shop& shop) { return WithApostrophes(shop.Trade.LastOrder.value(column)); });
  }
  /// Two fields for each of those who sell or ship: orders and freight.
  [[nodiscard]] std::vector<SampleField> Volumes(const QHash<int, QString>& names,
                                                 QHash<int, Volume> ShopTrade::*volumes) const;

  const std::vector<Shop>& m_shops;
  const ShopNames& m_names;
};

QString DepartmentOf(const QString& position) {
  for (const QString& word : {u"Owner"_s, u"Sales"_s, u"Marketing"_s, u"Accounting"_s, u"Order"_s}) {
    if (position.startsWith(word)) return word == u"Order"_s ? u"Purchasing"_s : word;
  }
  return u"Sales"_s;
}

QString ClassOf(const Shop& shop) {
  if (shop.Trade.All.Orders >= goodCustomer) return u"A"_s;
  return shop.Trade.All.Orders > smallCustomer ? u"B"_s : u"C"_s;
}

/// When the office here and theirs are both open.
QString TimeToCall(const Shop& shop) {
  if (shop.Country.HoursFromLondon >= 1) return u"Early in the morning"_s;
  return shop.Country.HoursFromLondon > -3 ? u"Before noon"_s : u"In the afternoon"_s;
}

int MonthOfMostOrders(const Shop& shop) {
  const auto& months = shop.Trade.OrdersInMonth;
  return static_cast<int>(std::ranges::max_element(months) - months.begin()) + 1;
}

QString MonthName(int month) { return QLocale::c().monthName(month); }

/// Who orders more has more time to pay, and a discount.
int DaysToPay(const Shop& shop) {
  const QString level = ClassOf(shop);
  if (level == u"A"_s) return 60;
  return level == u"B"_s ? 30 : 14;
}

std::vector<SampleField> Pages::Volumes(const QHash<int, QString>& names,
                                        QHash<int, Volume> ShopTrade::*volumes) const {
  QList<int> numbers = names.keys();
  std::ranges::sort(numbers);
  std::vector<SampleField> fields;
  for (const int number : numbers) {
    // A label has room for little more than a word.
    const QString word = names.value(number).section(u' ', 0, 0);
    const auto of = [number, volumes](const Shop& shop) { return (shop.Trade.*volumes).value(number); };
    fields.push_back(Number(word, [of](const Shop& shop) { return of(shop).Orders; }));
    fields.push_back(Number(word + u" $"_s, [of](const Shop& shop) { return of(shop).Freight; }));
  }
  return fields;
}

SamplePage Pages::Address() const {
  return {u"Address"_s,
          {Column(u"Street"_s, u"Address"_s), Column(u"City"_s, u"City"_s), Column(u"Region"_s, u"Region"_s),
           Column(u"Postcode"_s, u"PostalCode"_s), Column(u"Country"_s, u"Country"_s),
           Column(u"Telephone"_s, u"Phone"_s), Column(u"Fax"_s, u"Fax"_s),
           Text(u"Kind"_s, [](const Shop& shop) { return KindOfShop(shop.Row.value(u"CompanyName"_s)); }),
           Text(u"Continent"_s, [](const Shop& shop) { return shop.Country.Part; }),
           Text(u"Language"_s, [](const Shop& shop) { return shop.Country.Language; }),
           Column(u"Code"_s, u"CustomerID"_s),
           YesNo(u"Newsletter"_s, [](const Shop& shop) { return shop.Trade.All.Orders > smallCustomer; })}};
}

SamplePage Pages::Person() const {
  return {u"Contact"_s,
          {Column(u"Contact"_s, u"ContactName"_s), Column(u"Position"_s, u"ContactTitle"_s),
           Text(u"Section"_s, [](const Shop& shop) { return DepartmentOf(shop.Person.Position); }),
           Text(u"E-mail"_s, [](const Shop& shop) { return shop.Person.Email; }),
           Text(u"Call time"_s, &TimeToCall),
           Number(u"Time zone"_s, [](const Shop& shop) { return shop.Country.HoursFromLondon; }),
           YesNo(u"Is owner"_s, [](const Shop& shop) { return shop.Person.Position.contains(u"Owner"_s); }),
           Date(u"First met"_s, [](const Shop& shop) { return shop.Trade.First.addDays(-30); })}};
}

SamplePage Pages::Trade() const {
  return {
      u"Trade"_s,
      {Date(u"Since"_s, [](const Shop& shop) { return shop.Trade.First; }),
       Date(u"Last order"_s, [](const Shop& shop) { return shop.Trade.Last; }),
       Number(u"Orders"_s, [](const Shop& shop) { return shop.Trade.All.Orders; }),
       Number(u"Per year"_s,
              [](const Shop& shop) {
                const auto days = static_cast<double>(shop.Trade.First.daysTo(shop.Trade.Last));
                return Rounded(shop.Trade.All.Orders / std::max(1.0, days / daysOfYear));
              }),
       Number(u"Days"_s, [](const Shop& shop) { return shop.Trade.First.daysTo(shop.Trade.Last); }),
       Number(u"Gap days"_s, [](const Shop& shop) { return shop.Trade.LongestPause; }),
       Text(u"Class"_s, &ClassOf),
       Text(u"Seller"_s,
            [&names = m_names](const Shop& shop) { return names.Sellers.value(Busiest(shop.Trade.SoldBy)); }),
       Text(u"Shipper"_s,
            [&names = m_names](const Shop& shop) {
              return names.Shippers.value(Busiest(shop.Trade.ShippedBy));
            }),
       Text(u"Currency"_s, [](const Shop& shop) { return shop.Country.Currency; }),
       YesNo(u"Regular"_s, [](const Shop& shop) { return shop.Trade.All.Orders >= goodCustomer; }),
       YesNo(u"Sleeping"_s, [](const Shop& shop) { return shop.Trade.Last < QDate(1998, 1, 1); })}};
}

SamplePage Pages::Years() const {
  SamplePage page{u"Years"_s, {}};
  for (const int year : {96, 97, 98}) {
    const auto of = [year](const Shop& shop) { return shop.Trade.OfYear.value(1900 + year); };
    page.Fields.push_back(
        Number(u"Orders %1"_s.arg(year), [of](const Shop& shop) { return of(shop).Orders; }));
    page.Fields.push_back(
        Number(u"Freight %1"_s.arg(year), [of](const Shop& shop) { return of(shop).Freight; }));
    page.Fields.push_back(
        YesNo(u"Active %1"_s.arg(year), [of](const Shop& shop) { return of(shop).Orders > 0; }));
  }
  return page;
}

SamplePage Pages::Months() const {
  SamplePage page{u"Months"_s, {}};
  for (int month = 1; month <= 12; ++month) {
    page.Fields.push_back(Number(MonthName(month), [month](const Shop& shop) {
      return shop.Trade.OrdersInMonth.at(static_cast<std::size_t>(month - 1));
    }));
  }
  page.Fields.push_back(Text(u"Peak"_s, [](const Shop& shop) { return MonthName(MonthOfMostOrders(shop)); }));
  page.Fields.push_back(Text(u"Season"_s, [](const Shop& shop) {
    static const QStringList seasons{u"Winter"_s, u"Spring"_s, u"Summer"_s, u"Autumn"_s};
    return seasons.at(MonthOfMostOrders(shop) % 12 / 3);
  }));
  return page;
}

SamplePage Pages::Sellers() const { return {u"Sellers"_s, Volumes(m_names.Sellers, &ShopTrade::SoldBy)}; }

SamplePage Pages::Shipping() const {
  SamplePage page{u"Shipping"_s, Volumes(m_names.Shippers, &ShopTrade::ShippedBy)};
  for (SampleField& field : std::vector<SampleField>{
           Number(u"Freight"_s, [](const Shop& shop) { return shop.Trade.All.Freight; }),
           Number(u"Highest"_s, [](const Shop& shop) { return shop.Trade.HighestFreight; }),
           Number(u"Lowest"_s, [](const Shop& shop) { return shop.Trade.LowestFreight; }),
           Number(u"Average"_s,
                  [](const Shop& shop) { return Rounded(shop.Trade.All.Freight / shop.Trade.All.Orders); }),
           Number(u"Ship days"_s, [](const Shop& shop) { return shop.Trade.DaysToShip; }),
           Number(u"Late"_s, [](const Shop& shop) { return shop.Trade.LateDeliveries; })}) {
    page.Fields.push_back(std::move(field));
  }
  return page;
}

SamplePage Pages::Delivery() const {
  return {
      u"Delivery"_s,
      {LastOrder(u"Ship to"_s, u"ShipName"_s), LastOrder(u"To street"_s, u"ShipAddress"_s),
       LastOrder(u"To city"_s, u"ShipCity"_s), LastOrder(u"To region"_s, u"ShipRegion"_s),
       LastOrder(u"To code"_s, u"ShipPostalCode"_s), LastOrder(u"To country"_s, u"ShipCountry"_s),
       Text(u"Delivery"_s,
            [](const Shop& shop) { return shop.Country.Part == u"Europe"_s ? u"By road"_s : u"By sea"_s; }),
       YesNo(u"Own city"_s, [](const Shop& shop) {
         return shop.Trade.LastOrder.value(u"ShipCity"_s) == shop.Row.value(u"City"_s);
       })}};
}

SamplePage Pages::Terms() const {
  return {u"Terms"_s,
          {Number(u"Pay days"_s, &DaysToPay),
           Number(u"Discount"_s, [](const Shop& shop) { return ClassOf(shop) == u"A"_s ? 10 : 0; }),
           Number(u"Credit"_s, [](const Shop& shop) { return DaysToPay(shop) * 100; }),
           Text(u"Payment"_s, [](const Shop& shop) {
             return shop.Country.Part == u"Europe"_s ? u"Bank transfer"_s : u"Letter of credit"_s;
           })}};
}

SamplePage Pages::Visits() const {
  const auto day = [](QDate (*of)(std::size_t)) {
    return [of](std::size_t place) { return db::Value(of(place)); };
  };
  return {u"Visits"_s,
          {{u"Next visit"_s, FieldKind::Date, day(&NextVisit)},
           {u"Next call"_s, FieldKind::Date,
            day([](std::size_t place) { return NextVisit(place).addDays(-14); })},
           Text(u"Visit by"_s, [&names = m_names](const Shop& shop) {
             return names.Sellers.value(Busiest(shop.Trade.SoldBy));
           })}};
}

}  // namespace

std::vector<SamplePage> ShopPages(const std::vector<Shop>& shops, const ShopNames& names) {
  const Pages pages(shops, names);
  return {pages.Address(), pages.Person(),   pages.Trade(),    pages.Years(), pages.Months(),
          pages.Sellers(), pages.Shipping(), pages.Delivery(), pages.Terms(), pages.Visits()};
}

QDate NextVisit(std::size_t place) {
  constexpr int daysBetween = 4;
  return QDate(2027, 3, 1).addDays(static_cast<int>(place) * daysBetween);
}

}  // namespace velmora::demo
