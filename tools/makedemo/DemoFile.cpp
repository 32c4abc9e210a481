// SPDX-License-Identifier: MIT
#include "tools/makedemo/DemoFile.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/MakeCardFile.h"
#include "frame/Session.h"
#include "tools/makedemo/CardRows.h"

#include <QDate>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

/// A card with its contact, which has no name where there is none.
struct Card {
  QString Company;
  Values Fields;
  CsvRow Contact;
};

// Numbers without a card, so that there are gaps to step over.
constexpr std::array<std::int32_t, 3> gaps{13, 27, 28};

CardDesign Design() {
  const auto text = [](const QString& name) { return DesignField{name, FieldKind::Text}; };
  CardDesign design{.MainField = u"Company"_s, .Pages = {}};
  design.Pages[0] = {u"Address"_s,
                     {text(u"Street"_s), text(u"City"_s), text(u"Region"_s), text(u"Country"_s),
                      text(u"Telephone"_s), text(u"Fax"_s), text(u"Town of visit"_s)}};
  design.Pages[1] = {u"Trade"_s,
                     {text(u"Sector"_s),
                      text(u"Branch"_s),
                      {u"Founded"_s, FieldKind::Number},
                      {u"Listed since"_s, FieldKind::Date},
                      {u"Customer"_s, FieldKind::YesNo}}};
  design.Pages[2] = {u"Notes"_s,
                     {{u"Next visit"_s, FieldKind::Date},
                      {u"Discount"_s, FieldKind::Number},
                      {u"Newsletter"_s, FieldKind::YesNo},
                      text(u"Delivery"_s)}};
  return design;
}

Card FromCompany(const CsvRow& row) {
  const QString seat = row.value(u"Headquarters Location"_s);
  const qsizetype comma = seat.lastIndexOf(u", "_s);
  const QString beyond = seat.mid(comma + 2);
  static const QStringList abroad{u"Ireland"_s, u"United Kingdom"_s, u"Switzerland"_s, u"Netherlands"_s,
                                  u"Canada"_s};
  const bool foreign = abroad.contains(beyond);
  const QDate listed = QDate::fromString(row.value(u"Date added"_s), Qt::ISODate);
  Card card{.Company = row.value(u"Security"_s), .Fields = {}, .Contact = {}};
  card.Fields = {{u"Street"_s, u" "_s},
                 {u"City"_s, Filled(seat.left(comma))},
                 {u"Region"_s, foreign ? u" "_s : beyond},
                 {u"Country"_s, foreign ? beyond : u"USA"_s},
                 {u"Telephone"_s, u" "_s},
                 {u"Fax"_s, u" "_s},
                 {u"Sector"_s, Filled(row.value(u"GICS Sector"_s))},
                 {u"Branch"_s, Filled(row.value(u"GICS Sub-Industry"_s))},
                 {u"Founded"_s, row.value(u"Founded"_s).left(4).toInt()},
                 {u"Customer"_s, false}};
  if (listed.isValid()) card.Fields.emplace_back(u"Listed since"_s, listed);
  return card;
}

Card FromCustomer(const CsvRow& row) {
  Card card{.Company = row.value(u"CompanyName"_s), .Fields = {}, .Contact = row};
  card.Fields = {{u"Street"_s, Filled(row.value(u"Address"_s))},
                 {u"City"_s, Filled(row.value(u"City"_s))},
                 {u"Region"_s, Filled(row.value(u"Region"_s))},
                 {u"Country"_s, Filled(row.value(u"Country"_s))},
                 {u"Telephone"_s, Filled(row.value(u"Phone"_s))},
                 {u"Fax"_s, Filled(row.value(u"Fax"_s))},
                 {u"Sector"_s, u"Consumer Staples"_s},
                 {u"Branch"_s, u"Food Retail"_s},
                 {u"Customer"_s, true}};
  return card;
}

/// Companies and customers in turn, so that the first cards show both.
std::vector<Card> Cards() {
  const std::vector<CsvRow> companies = Table(u"demo/sp500.csv"_s);
  const std::vector<CsvRow> customers = Table(u"demo/customers.csv"_s);
  std::vector<Card> cards;
  for (std::size_t i = 0; i < std::max(companies.size(), customers.size()); ++i) {
    if (i < customers.size()) cards.push_back(FromCustomer(customers.at(i)));
    if (i < companies.size()) cards.push_back(FromCompany(companies.at(i)));
  }
  return cards;
}

void AddValueLists(const std::vector<Card>& cards) {
  for (const QString& field : {u"Country"_s, u"Sector"_s}) {
    QStringList values;
    for (const Card& card : cards) {
      for (const auto& [column, value] : card.Fields) {
        if (column == field) values.append(value.Text());
      }
    }
    AddValueList(field, values);
  }
  AddValueList(u"Delivery"_s, {u"By rail"_s, u"By road"_s, u"By sea"_s});
}

/// The fields that are made up: every card has a town, and some have a visit, of which a few are reminded of.
void AddCard(std::int32_t number, std::size_t place, const Card& card, const CsvRow& town) {
  constexpr std::size_t everyVisit = 4;
  constexpr std::size_t everyReminder = 12;
  Values values{{schema::CardNumber, number}, {u"Company"_s, card.Company}};
  values.insert(values.end(), card.Fields.begin(), card.Fields.end());
  const auto turn = static_cast<int>(place);
  values.emplace_back(u"Town of visit"_s, Filled(town.value(u"name"_s)));
  values.emplace_back(u"Discount"_s, turn % 4 * 5);
  values.emplace_back(u"Newsletter"_s, turn % 3 == 0);
  values.emplace_back(u"Delivery"_s, turn % 2 == 0 ? u"By road"_s : u" "_s);
  values.emplace_back(
      schema::Remarks,
      place % 10 == 0 ? u"Asks for the catalogue every spring.\r\nPrefers a call before noon."_s : u" "_s);
  const QDate visit = QDate(2027, 3, 1).addDays(turn * 3);
  if (place % everyVisit == 0) values.emplace_back(u"Next visit"_s, visit);
  AddRow(schema::Cards, values);
  if (place % everyReminder == 0) {
    AddRow(
        schema::Reminders,
        {{u"Index"_s, number}, {u"Next visit"_s, visit}, {AgentsColumn(u"Next visit"_s), u"Anna,Bruno"_s}});
  }
}

}  // namespace

void MakeDemoFile(const QString& path) {
  MakeCardFile(path, Design());
  const std::vector<Card> cards = Cards();
  const std::vector<CsvRow> towns = Table(u"demo/towns.csv"_s);
  const std::vector<CsvRow> people = Table(u"demo/customers.csv"_s);
  std::int32_t number = 0;
  for (std::size_t place = 0; place < cards.size(); ++place) {
    ++number;
    while (std::ranges::find(gaps, number) != gaps.end()) ++number;
    const Card& card = cards.at(place);
    AddCard(number, place, card, towns.at(place % towns.size()));
    if (card.Contact.isEmpty()) continue;
    AddContact(number, PersonOf(card.Contact), true);
    if (place % 4 == 0) AddContact(number, PersonOf(people.at((place + 5) % people.size())), false);
  }
  AddValueLists(cards);
  Global().File().Close();
}

}  // namespace velmora::demo
