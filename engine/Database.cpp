// SPDX-License-Identifier: MIT
#include "engine/Database.h"

#include "engine/rows/Connection.h"
#include "engine/rows/RecordsetCore.h"
#include "engine/rows/Structure.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

Database::Database(std::shared_ptr<Connection> connection) : m_connection(std::move(connection)) {}

Database::~Database() { m_connection->Close(); }

QString Database::Name() const { return m_connection->Path(); }

void Database::Close() { m_connection->Close(); }

Recordset Database::OpenRecordset(QStringView source, const std::vector<Value>& values) {
  auto translation = m_connection->TranslateSource(source, ParameterKindsOf(values));
  return Recordset(std::make_unique<RecordsetCore>(m_connection, std::move(translation), values));
}

std::int64_t Database::Execute(QStringView sql, const std::vector<Value>& values) {
  const auto translation = m_connection->TranslateAction(sql, ParameterKindsOf(values));
  const std::vector<Value> bound = BoundValues(translation->Parameters, values);
  m_connection->SettleRows(false);
  Transaction transaction(*m_connection);
  {
    BorrowedStatement statement = m_connection->Borrow(translation->Sql);
    BindParameters(statement.get(), bound);
    while (statement.Step()) {
    }
  }
  const std::int64_t changed = sqlite3_changes64(m_connection->Handle());
  transaction.Commit();
  return changed;
}

void Database::AsOneTransaction(const std::function<void()>& changes) {
  m_connection->AsOneTransaction(changes);
}

QStringList Database::TableDefs() const { return m_connection->Current().TableNames(); }

bool Database::HasTable(QStringView name) const { return m_connection->Current().HasTable(name); }

TableDef Database::TableDefOf(QStringView name) const { return RequireTable(*m_connection, name).Definition; }

void Database::AppendTableDef(const TableDef& table) { CreateTable(*m_connection, table); }

void Database::DeleteTableDef(QStringView name) { DropTable(*m_connection, name); }

void Database::AppendField(QStringView table, const Field& field) { AddColumn(*m_connection, table, field); }

void Database::DeleteField(QStringView table, QStringView field) { DropColumn(*m_connection, table, field); }

void Database::SetTableProperty(QStringView table, QStringView property, const QString& value) {
  const QString name = RequireTable(*m_connection, table).Definition.Name;
  WriteProperty(*m_connection, name, property, value);
}

QString Database::TableProperty(QStringView table, QStringView property) const {
  return ReadProperty(*m_connection, RequireTable(*m_connection, table).Definition.Name, property);
}

QStringList Database::QueryDefs() const { return m_connection->Current().QueryNames(); }

QueryDef Database::QueryDefOf(QStringView name) const {
  const StoredQuery* const query = m_connection->Current().FindStoredQuery(name);
  if (query == nullptr) {
    throw Error(ErrorCode::ItemNotFound, u"There is no query \"%1\"."_s.arg(name));
  }
  return {query->Name, query->Sql};
}

void Database::CreateQueryDef(QStringView name, QStringView sql) {
  StoreQuery(*m_connection, name, sql, QueryNameTaken::Fails);
}

void Database::ReplaceQueryDef(QStringView name, QStringView sql) {
  StoreQuery(*m_connection, name, sql, QueryNameTaken::Replaces);
}

void Database::DeleteQueryDef(QStringView name) { RemoveQuery(*m_connection, name); }

}  // namespace velmora::db
