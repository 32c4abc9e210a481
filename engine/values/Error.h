// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/EnvironmentFailure.h"

#include <QString>

#include <string>

namespace velmora::db {

/// The engine's error numbers, as the field knows them.
enum class ErrorCode : int {
  InvalidUseOfNull = 94,
  NoCurrentRecord = 3021,
  UpdateWithoutEdit = 3020,
  DuplicateKey = 3022,
  FileNotFound = 3024,
  InvalidArgument = 3001,
  CannotOpenFile = 3051,
  TableExists = 3010,
  ObjectExists = 3012,
  DiskFull = 3026,
  ReadOnlyDatabase = 3027,
  FileInUse = 3045,
  InvalidBracketing = 3126,
  AmbiguousColumn = 3079,
  UndefinedFunction = 3085,
  AggregateInWhere = 3096,
  SyntaxInFrom = 3131,
  SyntaxInGroupBy = 3132,
  SyntaxInHaving = 3133,
  SyntaxInInsert = 3134,
  SyntaxInJoin = 3135,
  SyntaxInOrderBy = 3138,
  SyntaxInUpdate = 3144,
  ReservedWordOrName = 3141,
  MissingOperand = 3145,
  SyntaxInExpression = 3075,
  CircularReference = 3102,
  CannotParse = 3129,
  InvalidName = 3125,
  ColumnExists = 3191,
  DatabaseExists = 3204,
  ActionInOpenRecordset = 3219,
  NotInAggregate = 3122,
  TextAfterEnd = 3142,
  JoinNotSupported = 3296,
  SubqueryColumns = 3306,
  UnionColumns = 3307,
  ValueCount = 3346,
  TooComplex = 3360,
  UnknownParameter = 3061,
  SelectInExecute = 3065,
  TableNotFound = 3078,
  TextTooLong = 3163,
  ItemNotFound = 3265,
  ColumnInIndex = 3280,
  ObjectClosed = 3420,
  TypeConversion = 3421,
  TypeMismatchInCondition = 3464,
  NumberOutOfRange = 3349,
  NotADatabase = 3343,
  RecordDeleted = 3167,
  ExclusivelyHeld = 3356,
  Internal = 3000,
};

/// A failure of the engine: its number and a text that a person can read.
class Error final : public EnvironmentFailure {
 public:
  Error(ErrorCode code, QString text);
  [[nodiscard]] int Number() const noexcept { return static_cast<int>(m_code); }
  [[nodiscard]] ErrorCode Code() const noexcept { return m_code; }
  [[nodiscard]] const QString& Text() const noexcept { return m_text; }
  [[nodiscard]] const char* what() const noexcept override { return m_what.c_str(); }

 private:
  ErrorCode m_code;
  QString m_text;
  std::string m_what;
};

}  // namespace velmora::db
