// SPDX-License-Identifier: MIT
#include "cardfile/CardFileSchema.h"
#include "cardfile/Options.h"
#include "frame/Session.h"
#include "tools/makedemo/Samples.h"
#include "tools/makedemo/ShopPages.h"

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t everySecondContact = 3;
constexpr std::size_t everyReminder = 5;

/// The letters of a name as an address takes them.
QString AddressPart(const QString& name) {
  QString plain;
  for (const QChar letter : name.normalized(QString::NormalizationForm_KD)) {
    if (letter.unicode() < 128 && letter.isLetter()) plain += letter.toLower();
  }
  return plain;
}

QString EmailOf(const Contact& person, const CsvRow& shop) {
  return u"%1.%2@%3.example"_s.arg(AddressPart(person.FirstName), AddressPart(person.LastName),
                                   AddressPart(shop.value(u"CustomerID"_s)));
}

void MakePlain(Contact& person) {
  for (QString* text : {&person.LastName, &person.Street, &person.City}) text->replace(u'\'', u'’');
}

/// Shops that never ordered have nothing to tell.
std::vector<Shop> ReadShops() {
  const QHash<QString, ShopTrade> trades = TradeOfShops(Table(u"samples/orders.csv"_s));
  std::vector<Shop> shops;
  for (const CsvRow& row : Table(u"samples/customers.csv"_s)) {
    const auto trade = trades.constFind(row.value(u"CustomerID"_s));
    if (trade == trades.constEnd()) continue;
    Shop shop{.Row = row, .Person = PersonOf(row), .Country = CountryOfShop(row), .Trade = *trade};
    MakePlain(shop.Person);
    shop.Person.Email = EmailOf(shop.Person, row);
    shops.push_back(shop);
  }
  return shops;
}

ShopNames ReadNames() {
  ShopNames names;
  for (const CsvRow& row : Table(u"samples/employees.csv"_s))
    names.Sellers.insert(row.value(u"EmployeeID"_s).toInt(),
                         u"%1 %2"_s.arg(row.value(u"FirstName"_s), row.value(u"LastName"_s)));
  for (const CsvRow& row : Table(u"samples/shippers.csv"_s))
    names.Shippers.insert(row.value(u"ShipperID"_s).toInt(), row.value(u"CompanyName"_s));
  return names;
}

/// The names that people bear, by locale and kind.
QHash<QString, QStringList> ReadPeople() {
  QHash<QString, QStringList> people;
  for (const CsvRow& row : Table(u"samples/names.csv"_s))
    people[row.value(u"locale"_s) + row.value(u"kind"_s)].append(row.value(u"name"_s));
  return people;
}

/// A colleague of the first contact, where people of that country can be named.
void AddColleague(const Shop& shop, std::size_t place, const QHash<QString, QStringList>& people) {
  const QStringList first = people.value(shop.Country.Names + u"first"_s);
  const QStringList last = people.value(shop.Country.Names + u"last"_s);
  if (first.isEmpty() || last.isEmpty()) return;
  const auto turn = static_cast<qsizetype>(place);
  Contact person = shop.Person;
  person.FirstName = first.at(turn % first.size());
  person.LastName = last.at(turn % last.size());
  person.Position = u"Assistant"_s;
  person.Email = EmailOf(person, shop.Row);
  MakePlain(person);
  AddContact(CardAt(place), person, false);
}

void AddMore(const std::vector<Shop>& shops, const ShopNames& names) {
  const QHash<QString, QStringList> people = ReadPeople();
  for (std::size_t place = 0; place < shops.size(); ++place) {
    const Shop& shop = shops.at(place);
    AddContact(CardAt(place), shop.Person, true);
    if (place % everySecondContact == 0) AddColleague(shop, place, people);
    if (place % everyReminder == 0) {
      const QString seller = names.Sellers.value(Busiest(shop.Trade.SoldBy));
      AddRow(schema::Reminders, {{u"Index"_s, CardAt(place)},
                                 {u"Next visit"_s, NextVisit(place)},
                                 {AgentsColumn(u"Next visit"_s), seller}});
    }
  }
  const Options options(Global().File());
  options.SetTelephoneField(u"Telephone"_s);
  options.SetFaxField(u"Fax"_s);
}

std::vector<SampleQuery> Queries() {
  const QStringList place{u"City"_s, u"Country"_s, u"Telephone"_s};
  return {{.Name = u"Germany"_s,
           .Columns = {u"City"_s, u"Contact"_s, u"Telephone"_s},
           .Conditions = {{u"Country"_s, {u"Germany"_s}}},
           .Base = {}},
          {.Name = u"London or Paris"_s,
           .Columns = place,
           .Conditions = {{u"City"_s, {u"London"_s, u"Paris"_s}}},
           .Base = {}},
          {.Name = u"Good customers of Germany"_s,
           .Columns = {u"Orders"_s, u"Seller"_s},
           .Conditions = {{u"Regular"_s, {u"Yes"_s}}},
           .Base = u"Germany"_s},
          {.Name = u"More than 20 orders"_s,
           .Columns = {u"Orders"_s, u"Country"_s, u"Seller"_s},
           .Conditions = {{u"Orders"_s, {u"> 20"_s}}},
           .Base = {}},
          {.Name = u"Visits in April 2027"_s,
           .Columns = {u"Next visit"_s, u"City"_s, u"Visit by"_s},
           .Conditions = {{u"Next visit"_s, {u">=  2027-04-01"_s, u"<=  2027-04-30"_s}}},
           .Base = {}},
          {.Name = u"Sleeping or often late"_s,
           .Columns = {u"Last order"_s, u"Late"_s, u"Telephone"_s},
           .Conditions = {{u"Sleeping"_s, {u"Yes"_s}}, {u"Late"_s, {u"> 2"_s}}},
           .All = false,
           .Base = {}}};
}

QString RemarksOn(const Shop& shop) {
  const auto date = [](QDate day) { return day.toString(Qt::ISODate); };
  return u"%1 orders from %2 to %3."_s.arg(shop.Trade.All.Orders)
      .arg(date(shop.Trade.First), date(shop.Trade.Last));
}

}  // namespace

void MakeShops(const QString& path) {
  const std::vector<Shop> shops = ReadShops();
  const ShopNames names = ReadNames();
  Sample sample{
      .MainField = u"Shop"_s, .Names = {}, .Remarks = {}, .Pages = {}, .ValueLists = {}, .Queries = {}};
  for (const Shop& shop : shops) sample.Names.append(Entry(shop.Row.value(u"CompanyName"_s)));
  sample.Remarks = [&shops](std::size_t place) { return RemarksOn(shops.at(place)); };
  sample.Pages = ShopPages(shops, names);
  sample.ValueLists = {u"Country"_s,  u"Kind"_s,      u"Continent"_s, u"Language"_s, u"Position"_s,
                       u"Section"_s,  u"Call time"_s, u"Class"_s,     u"Seller"_s,   u"Shipper"_s,
                       u"Currency"_s, u"Delivery"_s,  u"Payment"_s,   u"Visit by"_s, u"Season"_s};
  sample.Queries = Queries();
  MakeSampleFile(path, sample, [&] { AddMore(shops, names); });
}

}  // namespace velmora::demo
