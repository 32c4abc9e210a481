// SPDX-License-Identifier: MIT
#include "bench/BenchFile.h"

#include "engine/DBEngine.h"

namespace velmora::bench {

using namespace Qt::StringLiterals;
using db::FieldType;

namespace {

constexpr int DefaultCards = 1'000'000;
constexpr int TextFields = 14;

db::TableDef CardTable() {
  db::TableDef table{u"MainData"_s, {{u"Index@"_s, FieldType::Long}, {u"Name"_s, FieldType::Text, 150}}, {}};
  for (int field = 1; field <= TextFields; ++field) {
    table.Fields.push_back({u"Field %1"_s.arg(field), FieldType::Text, 200});
  }
  table.Fields.push_back({u"Amount"_s, FieldType::Double});
  table.Fields.push_back({u"Active"_s, FieldType::YesNo});
  table.Fields.push_back({u"Since"_s, FieldType::Date});
  table.Fields.push_back({u"Remarks"_s, FieldType::Memo});
  table.Indexes.push_back({u"Index"_s, {u"Index@"_s}, true, false});
  return table;
}

/// Names that look like names, so that a search for a part of one meets its letters elsewhere too.
QString FillSql(int cards) {
  QStringList texts;
  for (int field = 1; field <= TextFields; ++field) {
    texts.append(u"'value ' || (N * %1 %% 997)"_s.replace(u"%%"_s, u"%"_s).arg(field * 7));
  }
  return u"WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < "_s +
         QString::number(cards) +
         u") INSERT INTO MainData SELECT N, substr('Berger Carlsen Dubois Eriksson Fischer Garcia Hoffmann "
         u"Ivanov', "
         u"1 + (N * 31 % 50), 6 + N % 9) || ' ' || (N * 7919 % 100003) || ' Ltd', "_s +
         texts.join(u", ") + u", N / 4.0, -(N % 2), '2024-01-' || (10 + N % 20), NULL FROM C"_s;
}

}  // namespace

BenchFile& BenchFile::Instance() {
  static BenchFile instance;
  return instance;
}

BenchFile::BenchFile()
    : m_path(m_folder.filePath(u"cards.ddb"_s)),
      m_cards(qEnvironmentVariableIntValue("VELMORA_BENCH_CARDS")),
      m_engine(db::DBEngine().CreateDatabase(m_path, {})) {
  if (m_cards <= 0) m_cards = DefaultCards;
  m_engine->AppendTableDef(CardTable());
  m_bare = OpenBare();
  db::Run(m_bare.get(), FillSql(m_cards));
}

db::ConnectionHandle BenchFile::OpenBare() const {
  db::ConnectionHandle connection = db::OpenConnection(m_path, SQLITE_OPEN_READWRITE);
  db::Run(connection.get(), u"PRAGMA synchronous = EXTRA; PRAGMA threads = 2");
  return connection;
}

int BenchFile::NextNumber() {
  m_random = m_random * 1664525U + 1013904223U;
  return 1 + static_cast<int>((m_random >> 8U) % static_cast<unsigned>(m_cards));
}

}  // namespace velmora::bench
