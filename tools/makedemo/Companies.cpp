// SPDX-License-Identifier: MIT
#include "tools/makedemo/CardRows.h"
#include "tools/makedemo/SampleFile.h"
#include "tools/makedemo/Samples.h"

#include <QDate>
#include <QRegularExpression>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype yearLength = 4;
constexpr int oldCompany = 1900;

struct Company {
  CsvRow Row;
  QString City;
  QString State;
  QString Country;
  int Founded = 0;
};

Company FromRow(const CsvRow& row) {
  static const QStringList abroad{u"Ireland"_s,     u"United Kingdom"_s, u"Switzerland"_s,
                                  u"Netherlands"_s, u"Canada"_s,         u"Bermuda"_s};
  // Of two seats the first counts; marks of notes are left out, as is the word for no seat.
  static const QRegularExpression mark(u"\\[\\d+\\]"_s);
  QString seat = row.value(u"Headquarters Location"_s).section(u';', 0, 0).remove(mark);
  if (seat == u"none"_s) seat.clear();
  const qsizetype comma = seat.lastIndexOf(u", "_s);
  const QString beyond = comma < 0 ? QString() : seat.mid(comma + 2);
  const bool foreign = abroad.contains(beyond);
  return {.Row = row,
          .City = seat.left(comma),
          .State = foreign ? QString() : beyond,
          .Country = foreign ? beyond : u"USA"_s,
          .Founded = row.value(u"Founded"_s).left(yearLength).toInt()};
}

std::vector<Company> Companies() {
  std::vector<Company> companies;
  for (const CsvRow& row : Table(u"samples/companies.csv"_s)) companies.push_back(FromRow(row));
  return companies;
}

/// The story of its founding, where that is more than a year.
QString Story(const Company& company) {
  const QString founded = company.Row.value(u"Founded"_s);
  return founded.size() == yearLength ? u" "_s : Entry(u"Founded: "_s + founded);
}

std::vector<SampleQuery> Queries() {
  const QStringList seat{u"City"_s, u"State"_s, u"Sector"_s};
  return {{.Name = u"Texas"_s, .Columns = seat, .Conditions = {{u"State"_s, {u"Texas"_s}}}, .Base = {}},
          {.Name = u"Founded before 1900"_s,
           .Columns = {u"Founded"_s, u"City"_s, u"Branch"_s},
           .Conditions = {{u"Founded"_s, {u"< 1900"_s}}},
           .Base = {}},
          {.Name = u"Health or energy"_s,
           .Columns = seat,
           .Conditions = {{u"Sector"_s, {u"Health"_s, u"Energy"_s}}},
           .Base = {}},
          {.Name = u"Old companies of Texas"_s,
           .Columns = {u"Founded"_s, u"City"_s},
           .Conditions = {{u"State"_s, {u"Texas"_s}}},
           .Base = u"Founded before 1900"_s},
          {.Name = u"Listed since 2020"_s,
           .Columns = {u"Listed"_s, u"Symbol"_s},
           .Conditions = {{u"Listed"_s, {u">=  2020-01-01"_s}}},
           .Base = {}}};
}

}  // namespace

void MakeCompanies(const QString& path) {
  const std::vector<Company> companies = Companies();
  const auto text = [&companies](const QString& name, const QString& column) {
    return SampleField{name, FieldKind::Text, [&companies, column](std::size_t place) {
                         return db::Value(Entry(companies.at(place).Row.value(column)));
                       }};
  };
  const auto part = [&companies](const QString& name, QString Company::*member) {
    return SampleField{name, FieldKind::Text, [&companies, member](std::size_t place) {
                         return db::Value(Entry(companies.at(place).*member));
                       }};
  };
  Sample sample{
      .MainField = u"Company"_s, .Names = {}, .Remarks = {}, .Pages = {}, .ValueLists = {}, .Queries = {}};
  for (const Company& company : companies) sample.Names.append(Entry(company.Row.value(u"Security"_s)));
  sample.Remarks = [&companies](std::size_t place) { return Story(companies.at(place)); };
  sample.Pages = {
      {u"Company"_s,
       {text(u"Symbol"_s, u"Symbol"_s), text(u"Sector"_s, u"GICS Sector"_s),
        text(u"Branch"_s, u"GICS Sub-Industry"_s), part(u"City"_s, &Company::City),
        part(u"State"_s, &Company::State), part(u"Country"_s, &Company::Country)}},
      {u"History"_s,
       {{u"Founded"_s, FieldKind::Number, [&](std::size_t place) { return companies.at(place).Founded; }},
        {u"Listed"_s, FieldKind::Date,
         [&](std::size_t place) {
           return QDate::fromString(companies.at(place).Row.value(u"Date added"_s), Qt::ISODate);
         }},
        {u"CIK"_s, FieldKind::Number,
         [&](std::size_t place) { return companies.at(place).Row.value(u"CIK"_s).toInt(); }},
        {u"Old firm"_s, FieldKind::YesNo,
         [&](std::size_t place) { return companies.at(place).Founded < oldCompany; }}}}};
  sample.ValueLists = {u"Sector"_s, u"Branch"_s, u"State"_s, u"Country"_s};
  sample.Queries = Queries();
  MakeSampleFile(path, sample);
}

}  // namespace velmora::demo
