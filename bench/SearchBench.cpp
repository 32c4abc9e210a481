// SPDX-License-Identifier: MIT
// What the search screens ask of the file, at a million cards and as many contacts, beside bare SQLite.
#include "bench/BenchFile.h"
#include "bench/Pairs.h"
#include "search/SearchRows.h"

#include <array>

namespace velmora::bench {

using namespace Qt::StringLiterals;

namespace {

const QString mainField = u"Name"_s;
// Stands in few names, one that stands in none, and one whose next hit is a thousand rows away.
const QString rareText = u"sson 77"_s;
const QString noText = u"nowhere"_s;
const QString spreadText = u" 777 "_s;

/// The file of all benchmarks with a contact for each card.
BenchFile& File() {
  static const bool made = [] {
    BenchFile& file = BenchFile::Instance();
    db::TableDef contacts{u"Agent"_s, {{u"Index"_s, db::FieldType::Long}}, {{u"Index"_s, {u"Index"_s}}}};
    for (const QString& column : {u"Name"_s, u"1"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s})
      contacts.Fields.push_back({column, db::FieldType::Text});
    file.Engine().AppendTableDef(contacts);
    db::Run(file.Bare(),
            u"INSERT INTO Agent SELECT \"Index@\", substr(Name, 1, 6), substr(Name, 4), '030-' || (rowid * "
            u"7919 % "
            u"1000003), '', '0171 ' || (rowid * 31 % 100003), NULL FROM MainData");
    return true;
  }();
  static_cast<void>(made);
  return BenchFile::Instance();
}

SearchRows Engine() { return SearchRows(File().Engine()); }

/// The row ids of a statement, kept as a grid keeps them.
void BareKeys(benchmark::State& state, QStringView sql) {
  const auto statement = db::Prepare(File().Bare(), sql.toString());
  std::vector<std::uint32_t> keys;
  for (auto _ : state) {
    keys.clear();
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
      keys.push_back(static_cast<std::uint32_t>(sqlite3_column_int64(statement.get(), 0)));
    }
    sqlite3_reset(statement.get());
    benchmark::DoNotOptimize(keys.data());
  }
}

template <typename Open>
void Counted(benchmark::State& state, Open open) {
  // Made before it is measured.
  static_cast<void>(File());
  for (auto _ : state) {
    const db::Recordset rows = open();
    benchmark::DoNotOptimize(rows.RecordCount());
  }
}

void QuickSearchEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().CardsNamed(mainField, rareText); });
}
void QuickSearchBare(benchmark::State& state) {
  BareKeys(state, u"SELECT rowid FROM MainData WHERE Name LIKE '%sson 77%'");
}

void NumberEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().ContactsWithNumber(u"99887"_s); });
}
void NumberBare(benchmark::State& state) {
  BareKeys(
      state,
      u"SELECT rowid FROM Agent WHERE \"8\" LIKE '%99887%' OR \"9\" LIKE '%99887%' OR \"10\" LIKE '%99887%' "
      u"OR \"7\" LIKE '%99887%'");
}

void CardDataEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().AllCards(mainField); });
}
void CardDataBare(benchmark::State& state) { BareKeys(state, u"SELECT rowid FROM MainData ORDER BY rowid"); }

void ContactDataEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().AllContacts(); });
}
void ContactDataBare(benchmark::State& state) { BareKeys(state, u"SELECT rowid FROM Agent ORDER BY rowid"); }

void SortByNumberEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().AllCards(mainField, CardOrder::Number); });
}
void SortByNumberBare(benchmark::State& state) {
  BareKeys(state, u"SELECT rowid FROM MainData ORDER BY \"Index@\"");
}

void SortByNameEngine(benchmark::State& state) {
  Counted(state, [] { return Engine().AllCards(mainField, CardOrder::Name); });
}
void SortByNameBare(benchmark::State& state) { BareKeys(state, u"SELECT rowid FROM MainData ORDER BY Name"); }

/// All cards in a grid's order, as they are when the user has fetched them.
db::Recordset Fetched(CardOrder order) {
  db::Recordset rows = Engine().AllCards(mainField, order);
  benchmark::DoNotOptimize(rows.RecordCount());
  return rows;
}

void FindNoneEngine(benchmark::State& state) {
  const db::Recordset rows = Fetched(CardOrder::Number);
  for (auto _ : state) benchmark::DoNotOptimize(rows.FindText(1, noText, 0, db::FindWay::Down));
}
void FindNoneBare(benchmark::State& state) {
  BareKeys(state, u"SELECT rowid FROM MainData WHERE Name LIKE '%nowhere%'");
}

void FindLastEngine(benchmark::State& state) {
  const db::Recordset rows = Fetched(CardOrder::Name);
  for (auto _ : state)
    benchmark::DoNotOptimize(rows.FindText(0, QString::number(File().Cards()), 0, db::FindWay::Down));
}
void FindLastBare(benchmark::State& state) {
  BareKeys(state, u"SELECT rowid FROM MainData WHERE \"Index@\" LIKE '%1000000%'");
}

/// From hit to hit, each some thousand rows further.
void FindNextEngine(benchmark::State& state) {
  const db::Recordset rows = Fetched(CardOrder::Number);
  std::int64_t place = 0;
  for (auto _ : state) place = rows.FindText(1, spreadText, place, db::FindWay::Down).value_or(-1) + 1;
}
void FindNextBare(benchmark::State& state) {
  BareKeys(state, u"SELECT rowid FROM MainData WHERE Name LIKE '% 777 %'");
}

constexpr std::array Pairs{Pair{"quick search of a name", QuickSearchEngine, QuickSearchBare},
                           Pair{"telephone number", NumberEngine, NumberBare},
                           Pair{"data of the cards", CardDataEngine, CardDataBare},
                           Pair{"data of the contacts", ContactDataEngine, ContactDataBare},
                           Pair{"sort by number", SortByNumberEngine, SortByNumberBare},
                           Pair{"sort by name", SortByNameEngine, SortByNameBare},
                           Pair{"find, no hit", FindNoneEngine, FindNoneBare},
                           Pair{"find by number", FindLastEngine, FindLastBare},
                           Pair{"find next, far hits", FindNextEngine, FindNextBare}};

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) { return velmora::bench::RunPairs(velmora::bench::Pairs, argc, argv); }
