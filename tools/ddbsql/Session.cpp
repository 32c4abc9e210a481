// SPDX-License-Identifier: MIT
#include "tools/ddbsql/Session.h"

#include "base/dates/Dates.h"
#include "engine/DBEngine.h"
#include "engine/text/LikePattern.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <cmath>

namespace velmora::tools {

using namespace Qt::StringLiterals;
using db::Error;
using db::ErrorCode;
using db::FieldType;
using db::Value;

namespace {

struct KindName {
  QLatin1StringView Name;
  FieldType Type;
};
constexpr std::array Kinds{
    KindName{"Text"_L1, FieldType::Text},         KindName{"Memo"_L1, FieldType::Memo},
    KindName{"Long"_L1, FieldType::Long},         KindName{"Double"_L1, FieldType::Double},
    KindName{"Currency"_L1, FieldType::Currency}, KindName{"Yes/No"_L1, FieldType::YesNo},
    KindName{"Date"_L1, FieldType::Date}};

Error BadRequest(const QString& text) { return {ErrorCode::InvalidArgument, text}; }

QString RequireText(const QJsonValue& value, const QString& what) {
  if (!value.isString()) throw BadRequest(what + u" must be a text."_s);
  return value.toString();
}

QJsonArray RequireList(const QJsonValue& value, const QString& what) {
  if (!value.isArray()) throw BadRequest(what + u" must be a list."_s);
  return value.toArray();
}

QJsonValue JsonOf(const Value& value) {
  if (value.IsNull()) return QJsonValue::Null;
  if (value.IsTruth()) return value.Truth();
  if (value.IsWhole()) return static_cast<qint64>(value.Whole());
  if (value.IsNumber()) return value.Number();
  if (value.IsDate()) return StoredDate(value.DateTime());
  return value.Text();
}

Value ValueOf(const QJsonValue& json) {
  constexpr double exactWhole = 0x1p53;
  switch (json.type()) {
    case QJsonValue::Null:
      return {};
    case QJsonValue::Bool:
      return {json.toBool()};
    case QJsonValue::String:
      return {json.toString()};
    case QJsonValue::Double: {
      const double number = json.toDouble();
      if (number == std::trunc(number) && std::abs(number) < exactWhole) return {json.toInteger()};
      return {number};
    }
    default:
      throw BadRequest(u"A value must be a text, a number, true, false or null."_s);
  }
}

db::Field FieldOf(const QJsonValue& json) {
  const QJsonArray parts = RequireList(json, u"A column"_s);
  const QString name = RequireText(parts.at(0), u"A column's name"_s);
  const QString kind = RequireText(parts.at(1), u"A column's kind"_s);
  const auto known = std::find_if(Kinds.begin(), Kinds.end(), [&](const KindName& candidate) {
    return kind.compare(candidate.Name, Qt::CaseInsensitive) == 0;
  });
  if (known == Kinds.end()) throw BadRequest(u"There is no kind of column \""_s + kind + u"\"."_s);
  return {name, known->Type, parts.at(2).toInt(db::DefaultTextSize)};
}

db::Index IndexOf(const QJsonValue& json) {
  const QJsonArray parts = RequireList(json, u"An index"_s);
  db::Index index{RequireText(parts.at(0), u"An index's name"_s), {}, parts.at(2).toBool(), false};
  for (const QJsonValue& column : RequireList(parts.at(1), u"An index's columns"_s)) {
    index.Fields.append(RequireText(column, u"A column's name"_s));
  }
  return index;
}

QByteArray Line(const QJsonObject& answer) { return QJsonDocument(answer).toJson(QJsonDocument::Compact); }

QJsonObject Done() { return {{u"ok"_s, true}}; }

}  // namespace

Session::Session(const QString& path)
    : m_database(QFileInfo::exists(path) ? db::DBEngine().OpenDatabase(path)
                                         : db::DBEngine().CreateDatabase(path, {})) {}

QByteArray Session::FailureOf(const Error& error) {
  return Line({{u"error"_s, error.Number()}, {u"text"_s, error.Text()}});
}

QByteArray Session::Answer(const QByteArray& line) {
  try {
    QJsonParseError failure;
    const QJsonDocument request = QJsonDocument::fromJson(line, &failure);
    if (!request.isObject()) throw BadRequest(u"This is not one JSON object: "_s + failure.errorString());
    return Line(AnswerRequest(request.object()));
  } catch (const Error& error) {
    return FailureOf(error);
  }
}

QJsonObject Session::AnswerRequest(const QJsonObject& request) {
  if (request.contains("table"_L1)) return MakeTable(request);
  if (request.contains("add"_L1)) return AddRow(request);
  if (request.contains("query"_L1)) return StoreOrShowQuery(request);
  if (request.contains("like"_L1)) return MatchPattern(request);
  if (request.contains("sql"_L1)) return RunSql(request);
  throw BadRequest(u"A line asks for one of sql, table, add, query and like."_s);
}

QJsonObject Session::RunSql(const QJsonObject& request) {
  const QString sql = RequireText(request["sql"_L1], u"sql"_s);
  std::optional<db::Recordset> rows;
  try {
    rows = m_database->OpenRecordset(sql);
  } catch (const Error& error) {
    if (error.Code() != ErrorCode::ActionInOpenRecordset) throw;
    return {{u"changed"_s, static_cast<qint64>(m_database->Execute(sql))}};
  }
  QJsonArray columns;
  for (int column = 0; column < rows->FieldCount(); ++column) columns.append(rows->FieldAt(column).Name);
  QJsonArray lines;
  for (; !rows->AtEnd(); rows->MoveNext()) {
    QJsonArray line;
    for (int column = 0; column < rows->FieldCount(); ++column) line.append(JsonOf(rows->At(column)));
    lines.append(line);
  }
  return {{u"columns"_s, columns}, {u"rows"_s, lines}};
}

QJsonObject Session::MakeTable(const QJsonObject& request) {
  db::TableDef table{RequireText(request["table"_L1], u"table"_s), {}, {}};
  for (const QJsonValue& column : RequireList(request["columns"_L1], u"columns"_s)) {
    table.Fields.push_back(FieldOf(column));
  }
  if (request.contains("indexes"_L1)) {
    for (const QJsonValue& index : RequireList(request["indexes"_L1], u"indexes"_s)) {
      table.Indexes.push_back(IndexOf(index));
    }
  }
  m_database->AppendTableDef(table);
  return Done();
}

QJsonObject Session::AddRow(const QJsonObject& request) {
  const QString table = RequireText(request["add"_L1], u"add"_s);
  if (!request["values"_L1].isObject()) throw BadRequest(u"values must be an object."_s);
  const QJsonObject values = request["values"_L1].toObject();
  db::Recordset rows = m_database->OpenRecordset(table);
  rows.AddNew();
  for (auto entry = values.begin(); entry != values.end(); ++entry)
    rows.Set(entry.key(), ValueOf(entry.value()));
  rows.Update();
  return Done();
}

QJsonObject Session::StoreOrShowQuery(const QJsonObject& request) {
  const QString name = RequireText(request["query"_L1], u"query"_s);
  if (!request.contains("sql"_L1)) return {{u"sql"_s, m_database->QueryDefOf(name).SQL}};
  m_database->CreateQueryDef(name, RequireText(request["sql"_L1], u"sql"_s));
  return Done();
}

QJsonObject Session::MatchPattern(const QJsonObject& request) {
  const QJsonArray pair = RequireList(request["like"_L1], u"like"_s);
  if (pair.size() != 2) throw BadRequest(u"like takes a pattern and a value."_s);
  const Value pattern = ValueOf(pair.at(0));
  const Value value = ValueOf(pair.at(1));
  const QString answer = u"value"_s;
  if (pattern.IsNull() || value.IsNull()) return {{answer, QJsonValue::Null}};
  return {{answer, db::MatchesLike(pattern.Text(), value.Text())}};
}

}  // namespace velmora::tools
