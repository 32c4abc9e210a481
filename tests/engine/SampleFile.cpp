// SPDX-License-Identifier: MIT
#include "tests/engine/SampleFile.h"

#include "base/text/Numbers.h"
#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/SqlFunctions.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr auto Text = FieldType::Text;
constexpr auto Long = FieldType::Long;
constexpr auto Date = FieldType::Date;

TableDef Table(const QString& name, std::vector<Field> fields, std::vector<Index> indexes = {}) {
  return {.Name = name, .Fields = std::move(fields), .Indexes = std::move(indexes)};
}

TableDef Agent() {
  TableDef agent = Table(u"Agent"_s, {{u"Index"_s, Long}, {u"Name"_s, Text}, {u"Activ"_s, FieldType::YesNo}},
                         {{.Name = u"Index"_s, .Fields = {u"Index"_s}}});
  for (int column = 1; column <= 16; ++column) agent.Fields.push_back({QString::number(column), Text});
  agent.Fields.push_back({u"Biografy"_s, FieldType::Memo});
  agent.Fields.push_back({u"PathFoto"_s, Text});
  return agent;
}

std::vector<TableDef> Tables() {
  return {
      Table(u"Location"_s, {{u"Name"_s, Text}, {u"Tab"_s, Long}, {u"Type"_s, Long}}),
      Table(u"MainData"_s,
            {{u"Index@"_s, Long},
             {u"Company"_s, Text, 150},
             {u"City"_s, Text, 200},
             {u"Turnover"_s, FieldType::Double},
             {u"Active"_s, FieldType::YesNo},
             {u"Due"_s, Date},
             {u"Fee"_s, FieldType::Currency},
             {u"Größe 1"_s, Long},
             {u"Remarks"_s, FieldType::Memo}},
            {{.Name = u"Index"_s, .Fields = {u"Index@"_s}, .Unique = true}}),
      Table(u"CityT"_s, {{u"City"_s, Text}}),
      Table(u"City T"_s, {{u"City "_s.trimmed(), Text}}),
      Table(u"TableDatesRemainder"_s, {{u"Index"_s, Long}, {u"Due"_s, Date}, {u"DueAgents"_s, Text}}),
      Table(u"tOptions"_s, {{u"txtKey"_s, Text, 40}, {u"tVal"_s, Text, 40}}),
      Table(u"Telefon"_s,
            {{u"Index"_s, Long}, {u"Date"_s, Date}, {u"Time"_s, Date}, {u"DesTok"_s, FieldType::Memo}}),
      Table(u"PriceList"_s, {{u"Index"_s, Long}, {u"Year"_s, Long}, {u"Status"_s, Text}}),
      Table(u"Meeting"_s, {{u"Index"_s, Long},
                           {u"Date"_s, Date},
                           {u"Place"_s, Text},
                           {u"Post"_s, Text},
                           {u"Define"_s, Text},
                           {u"Memo"_s, FieldType::Memo}}),
      Agent(),
      Table(u"Größe"_s, {{u"1"_s, Long}, {u"a-b#$+=@"_s, Text}, {u"say \"x\""_s, Text}}),
      Table(u"sqlite_x"_s, {{u"rowid"_s, Long}, {u"_rowid_"_s, Text}}),
  };
}

// What the layer's own names for the few that SQLite keeps to itself look like does not matter here.
QString InFile(QStringView name) {
  const bool isKept = name.startsWith("sqlite_"_L1) || name == "_rowid_"_L1;
  return isKept ? u'.' + name.toString() : name.toString();
}

constexpr auto SampleRows = R"(
INSERT INTO Location VALUES ('Company',0,0), ('Main',1,1), (NULL,3,1), ('City',1,2), ('Turnover',1,3),
  ('Active',3,4), ('Due',3,5);
INSERT INTO MainData VALUES
  (30,'Alpha','Paris',150.5,-1,'1999-03-01',10.25,7,'x_y'),
  (10,'beta ltd','Lyon',5,0,'1999-02-01 10:30:00',0,NULL,'100%'),
  (20,'Émile','paris ',NULL,1,NULL,NULL,12,'a*b'),
  (40,'emil','Straße',10,0,'1999-04-03',99.9999,-3,'a[b'),
  (50,'Gamma','LYON',7,-1,'2001-12-31',3,100,NULL),
  (60,'delta',NULL,-2.5,0,'1998-01-02',-1,2147483647,'');
INSERT INTO CityT VALUES ('Paris'), ('Lyon'), ('*');
INSERT INTO tOptions VALUES ('FieldDial','City'), ('Fieldfax',NULL);
INSERT INTO Agent("Index","Name","Activ","1","7","8","9","10") VALUES
  (10,'Ann',-1,'Alder','555-1','02 100','',NULL), (10,'Bo',0,'Birch','555-2','03 100',NULL,'1'),
  (30,'Cy',0,'Cox',NULL,NULL,NULL,NULL);
INSERT INTO TableDatesRemainder VALUES (10,'1999-02-05','Ann Alder'), (30,NULL,NULL);
INSERT INTO Meeting VALUES (1,'1999-01-01','Here','Post 1','def','memo');
INSERT INTO "Größe" VALUES (1,'x','y');
INSERT INTO ".sqlite_x" VALUES (5,'five'), (4,'four');
)"_L1;

const std::pair<QString, QString> Queries[] = {
    {u"Customers&"_s,
     u"SELECT [Index@], [Company]\r\nFROM MainData\r\nWHERE ([City]  Like '*paris*');\r\n"_s},
    {u"ByCity"_s, u"SELECT [Index@], City FROM MainData ORDER BY City DESC"_s},
    {u"Cities"_s, u"SELECT DISTINCT City FROM MainData WHERE City IS NOT NULL"_s},
    {u"Counts"_s, u"SELECT City, Count(*) AS n FROM MainData GROUP BY City"_s},
    {u"Top 2"_s, u"SELECT TOP 2 [Index@], Company FROM MainData ORDER BY [Index@] DESC"_s},
    {u"Nested"_s, u"SELECT [Index@] AS Card, Company & '!' AS Loud FROM [Customers&] WHERE [Index@] > 20"_s},
    {u"Lost"_s, u"SELECT Gone FROM MainData"_s},
    {u"NoTable"_s, u"SELECT * FROM Gone"_s},
    {u"Round"_s, u"SELECT * FROM About"_s},
    {u"About"_s, u"SELECT * FROM Round WHERE 1 = 1"_s},
    {u"Sweep"_s, u"DELETE * FROM CityT"_s},
};

}  // namespace

SampleFile::SampleFile()
    : m_connection(OpenConnection(u":memory:"_s, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) {
  sqlite3_db_config(Handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(Handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(Handle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(Handle(), SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  InstallSqlFunctions(Handle());
  for (const TableDef& table : Tables()) Add(table);
  Run(Handle(),
      QString(SampleRows.data() == nullptr ? QString()
                                           : QString::fromUtf8(SampleRows.data(), SampleRows.size())));
  for (const auto& [name, sql] : Queries) StoreQuery(name, sql);
}

void SampleFile::StoreQuery(const QString& name, const QString& sql) { m_queries[FoldName(name)] = sql; }

void SampleFile::Add(const TableDef& table) {
  QStringList columns;
  for (const Field& field : table.Fields)
    columns.append(QuoteName(InFile(field.Name)) + u' ' + DeclarationOf(field));
  const QString inFile = InFile(table.Name);
  Run(Handle(), u"CREATE TABLE %1 (%2)"_s.arg(QuoteName(inFile), columns.join(u", "_s)));
  for (const Index& index : table.Indexes) {
    Run(Handle(), u"CREATE %1INDEX %2 ON %3 (%4)"_s.arg(index.Unique ? u"UNIQUE "_s : QString(),
                                                        QuoteName(inFile + u'.' + index.Name),
                                                        QuoteName(inFile), QuoteName(index.Fields.front())));
  }
  m_tables[FoldName(table.Name)] = table;
}

std::optional<TableDef> SampleFile::FindTable(QStringView name) const {
  const auto found = m_tables.find(FoldName(name));
  return found == m_tables.end() ? std::nullopt : std::optional(found->second);
}

std::optional<QString> SampleFile::FindQuery(QStringView name) const {
  const auto found = m_queries.find(FoldName(name));
  return found == m_queries.end() ? std::nullopt : std::optional(found->second);
}

QString SampleFile::RowIdName(QStringView table) const {
  return table.startsWith("sqlite_"_L1) ? u"oid"_s : u"rowid"_s;
}

QString SampleFile::StoredTableName(QStringView table) const { return InFile(table); }

QString SampleFile::StoredColumnName(QStringView, QStringView column) const { return InFile(column); }

QString SampleFile::Rows(QStringView sql, const std::vector<Value>& values) {
  const auto statement = ParseStatement(sql, ParameterUse::Allowed);
  const Translation translation = Translate(*statement, *this, ParameterKindsOf(values));
  return RowsOf(Handle(), translation.Sql, BoundValues(translation.Parameters, values));
}

QString SampleFile::PlanOf(const QString& sqliteText) {
  const StatementHandle statement = Prepare(Handle(), u"EXPLAIN QUERY PLAN "_s + sqliteText);
  QStringList steps;
  while (sqlite3_step(statement.get()) == SQLITE_ROW) steps.append(ColumnText(statement.get(), 3));
  return steps.join(u" | "_s);
}

QString RowsOf(sqlite3* connection, const QString& sqliteText, const std::vector<Value>& bound,
               std::optional<qlonglong> rowId) {
  const StatementHandle statement = Prepare(connection, sqliteText);
  BindParameters(statement.get(), bound);
  if (rowId) Check(connection, sqlite3_bind_int64(statement.get(), RowIdParameter, *rowId));
  QStringList rows;
  int result = SQLITE_ROW;
  while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
    QStringList values;
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
      switch (sqlite3_column_type(statement.get(), column)) {
        case SQLITE_NULL:
          values.append(u"-"_s);
          break;
        case SQLITE_FLOAT:
          values.append(NumberText(sqlite3_column_double(statement.get(), column)));
          break;
        default:
          values.append(ColumnText(statement.get(), column));
      }
    }
    rows.append(values.join(u','));
  }
  Check(connection, result);
  return rows.join(u'|');
}

}  // namespace velmora::db
