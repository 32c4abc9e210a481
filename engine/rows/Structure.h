// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Connection.h"

namespace velmora::db {

/// The changes of a file's structure and of its stored queries and properties, each one transaction. The
/// contracts stand with Database, whose operations these are.

void CreateTable(Connection& connection, const TableDef& table);
void DropTable(Connection& connection, QStringView name);
void AddColumn(Connection& connection, QStringView table, const Field& field);
void DropColumn(Connection& connection, QStringView table, QStringView field);

/// What becomes of a query that has the name of a new one.
enum class QueryNameTaken { Fails, Replaces };
void StoreQuery(Connection& connection, QStringView name, QStringView sql, QueryNameTaken taken);
void RemoveQuery(Connection& connection, QStringView name);

/// Properties belong to a table, or to the file when `object` is empty. Empty when never set.
void WriteProperty(Connection& connection, const QString& object, QStringView property, const QString& value);
[[nodiscard]] QString ReadProperty(Connection& connection, const QString& object, QStringView property);

/// 3265 when the table is missing.
[[nodiscard]] const StoredTable& RequireTable(Connection& connection, QStringView name);

}  // namespace velmora::db
