// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QByteArray>
#include <QJsonObject>

namespace velmora::tools {

/// Answers the lines of a ddbsql run on one open card file. Nothing that a line asks can end the run: a
/// failure is an answer too.
class Session final {
 public:
  /// Opens the file, and makes it when there is none.
  explicit Session(const QString& path);

  /// One JSON object in, one out; main.cpp tells the forms.
  [[nodiscard]] QByteArray Answer(const QByteArray& line);
  [[nodiscard]] static QByteArray FailureOf(const db::Error& error);

 private:
  [[nodiscard]] QJsonObject AnswerRequest(const QJsonObject& request);
  [[nodiscard]] QJsonObject RunSql(const QJsonObject& request);
  [[nodiscard]] QJsonObject MakeTable(const QJsonObject& request);
  [[nodiscard]] QJsonObject AddRow(const QJsonObject& request);
  [[nodiscard]] QJsonObject StoreOrShowQuery(const QJsonObject& request);
  [[nodiscard]] static QJsonObject MatchPattern(const QJsonObject& request);

  std::shared_ptr<db::Database> m_database;
};

}  // namespace velmora::tools
