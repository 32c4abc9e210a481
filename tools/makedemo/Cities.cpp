// SPDX-License-Identifier: MIT
#include "tools/makedemo/CardRows.h"
#include "tools/makedemo/SampleFile.h"
#include "tools/makedemo/Samples.h"

#include <QSet>

#include <algorithm>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t wanted = 2500;

/// As many as are wanted, from all over the table. Each name once: a card's name is its own.
std::vector<CsvRow> Cities() {
  std::vector<CsvRow> all;
  QSet<QString> names;
  for (const CsvRow& row : Table(u"samples/cities.csv"_s)) {
    const QString name = Entry(row.value(u"name"_s)).toCaseFolded();
    if (names.contains(name)) continue;
    names.insert(name);
    all.push_back(row);
  }
  std::vector<CsvRow> cities;
  for (std::size_t place = 0; place < wanted; ++place) cities.push_back(all.at(place * all.size() / wanted));
  return cities;
}

/// "Iran, Islamic Republic of" as one says it.
QString CountryOf(const CsvRow& row) {
  const QString name = row.value(u"country"_s);
  if (name.endsWith(u": XK"_s)) return u"Kosovo"_s;
  const qsizetype comma = name.indexOf(u", "_s);
  return Entry(comma < 0 ? name : name.mid(comma + 2) + u' ' + name.left(comma));
}

bool IsPlain(const QString& name) {
  return std::ranges::all_of(name, [](QChar character) { return character.unicode() < 128; });
}

std::vector<SampleQuery> Queries() {
  const QStringList where{u"Region"_s, u"Country"_s};
  return {{.Name = u"Poland"_s, .Columns = where, .Conditions = {{u"Country"_s, {u"Poland"_s}}}, .Base = {}},
          {.Name = u"Saints"_s,
           .Columns = where,
           .Conditions = {{u"Region"_s, {u"Saint"_s, u"San "_s, u"São"_s}}},
           .Base = {}},
          {.Name = u"Short names"_s,
           .Columns = {u"Letters"_s, u"Country"_s},
           .Conditions = {{u"Letters"_s, {u"< 4"_s}}},
           .Base = {}},
          {.Name = u"Plain letters in Poland"_s,
           .Columns = where,
           .Conditions = {{u"Plain"_s, {u"Yes"_s}}},
           .Base = u"Poland"_s}};
}

}  // namespace

void MakeCities(const QString& path) {
  const std::vector<CsvRow> cities = Cities();
  Sample sample{
      .MainField = u"City"_s, .Names = {}, .Remarks = {}, .Pages = {}, .ValueLists = {}, .Queries = {}};
  for (const CsvRow& row : cities) sample.Names.append(Entry(row.value(u"name"_s)));
  const QStringList& names = sample.Names;
  const auto nameAt = [&names](std::size_t place) { return names.at(static_cast<qsizetype>(place)); };
  const auto number = [&cities](std::size_t place) { return cities.at(place).value(u"geonameid"_s); };
  sample.Remarks = [](std::size_t /*place*/) { return u" "_s; };
  sample.Pages = {
      {u"City"_s,
       {{u"Region"_s, FieldKind::Text,
         [&](std::size_t place) { return Entry(cities.at(place).value(u"subcountry"_s)); }},
        {u"Country"_s, FieldKind::Text, [&](std::size_t place) { return CountryOf(cities.at(place)); }},
        {u"Initial"_s, FieldKind::Text, [&](std::size_t place) { return nameAt(place).left(1).toUpper(); }},
        {u"Letters"_s, FieldKind::Number,
         [&](std::size_t place) { return static_cast<int>(nameAt(place).size()); }},
        {u"Plain"_s, FieldKind::YesNo, [&](std::size_t place) { return IsPlain(nameAt(place)); }}}},
      {u"Source"_s,
       {{u"GeoNames"_s, FieldKind::Number, [&](std::size_t place) { return number(place).toInt(); }},
        {u"Web page"_s, FieldKind::Text,
         [&](std::size_t place) { return u"https://www.geonames.org/%1"_s.arg(number(place)); }}}}};
  sample.ValueLists = {u"Country"_s, u"Initial"_s};
  sample.Queries = Queries();
  MakeSampleFile(path, sample);
}

}  // namespace velmora::demo
