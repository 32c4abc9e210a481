// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlParameter.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"
#include "engine/sqlite/Storage.h"
#include "engine/values/Error.h"

#include <algorithm>
#include <limits>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

bool IsSame(const Field& one, const Field& other) {
  return one.Name == other.Name && one.Type == other.Type && one.Size == other.Size;
}

Value AsNumber(const Value& value) {
  const auto number = ParseNumber(value.Text());
  if (!number)
    throw Error(ErrorCode::TypeMismatchInCondition, u"\"%1\" is not a number."_s.arg(value.Text()));
  return Value(*number);
}

QDateTime AsMoment(const Value& value) {
  const auto moment = ParseDate(value.Text());
  if (!moment) throw Error(ErrorCode::TypeMismatchInCondition, u"\"%1\" is not a date."_s.arg(value.Text()));
  return *moment;
}

Value InForm(const SqlParameter& parameter, const Value& value) {
  switch (parameter.Form) {
    case ParameterForm::Itself:
      return value;
    case ParameterForm::Number:
      return AsNumber(value);
    case ParameterForm::Date:
      return Value(AsMoment(value));
    case ParameterForm::Day:
      return Value(AsMoment(value).date());
    case ParameterForm::Stored:
      return Converted(parameter.Column, value);
  }
  return value;
}

}  // namespace

ParameterKind ParameterKindOf(const Value& value) {
  if (value.IsNull()) return ParameterKind::Null;
  if (value.IsTruth()) return value.Truth() ? ParameterKind::Yes : ParameterKind::No;
  if (value.IsText()) return ParameterKind::Text;
  if (value.IsDate()) return ParameterKind::Date;
  if (!value.IsWhole()) return ParameterKind::Number;
  const bool isLong = value.Whole() >= std::numeric_limits<std::int32_t>::min() &&
                      value.Whole() <= std::numeric_limits<std::int32_t>::max();
  return isLong ? ParameterKind::Long : ParameterKind::Number;
}

ParameterKinds ParameterKindsOf(const std::vector<Value>& values) {
  ParameterKinds kinds;
  kinds.reserve(values.size());
  std::transform(values.begin(), values.end(), std::back_inserter(kinds), ParameterKindOf);
  return kinds;
}

QString ParameterList::Sql(const SqlParameter& parameter) {
  auto found = std::find_if(m_parameters.begin(), m_parameters.end(), [&](const SqlParameter& known) {
    return known.Place == parameter.Place && known.Form == parameter.Form &&
           IsSame(known.Column, parameter.Column);
  });
  if (found == m_parameters.end()) found = m_parameters.insert(found, parameter);
  return u'?' + QString::number(FirstParameter + (found - m_parameters.begin()));
}

std::vector<Value> BoundValues(const std::vector<SqlParameter>& parameters,
                               const std::vector<Value>& values) {
  std::vector<Value> bound;
  bound.reserve(parameters.size());
  for (const SqlParameter& parameter : parameters) {
    bound.push_back(InForm(parameter, values[parameter.Place]));
  }
  return bound;
}

void BindParameters(sqlite3_stmt* statement, const std::vector<Value>& bound) {
  const int last = sqlite3_bind_parameter_count(statement);
  int parameter = FirstParameter;
  for (const Value& value : bound) {
    if (parameter > last) return;
    Bind(statement, parameter++, value);
  }
}

}  // namespace velmora::db
