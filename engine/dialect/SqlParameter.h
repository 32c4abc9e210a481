// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Schema.h"
#include "engine/values/Value.h"

#include <cstddef>
#include <utility>
#include <vector>

struct sqlite3_stmt;

namespace velmora::db {

/// What is known of a value that is given with a statement while the statement is written: what a literal in
/// its place would tell by its kind. Truth and Null are told whole, for the rules turn on them.
enum class ParameterKind : char16_t {
  Null = u'0',
  Yes = u'y',
  No = u'n',
  Long = u'l',
  Number = u'd',
  Text = u't',
  Date = u'#',
};
using ParameterKinds = std::vector<ParameterKind>;

[[nodiscard]] ParameterKind ParameterKindOf(const Value& value);
[[nodiscard]] ParameterKinds ParameterKindsOf(const std::vector<Value>& values);

/// As what a value is bound: itself, as a number, as a date, as the day of a date, or as a column stores it.
enum class ParameterForm { Itself, Number, Date, Day, Stored };

/// One parameter of a written statement: the value, counted from 0, that is bound to it, and its form.
struct SqlParameter {
  std::size_t Place = 0;
  ParameterForm Form = ParameterForm::Itself;
  /// For the stored form.
  Field Column{};
};

/// ?1 is the row id of the row that is wanted; the parameters of a statement follow in their order.
inline constexpr int RowIdParameter = 1;
inline constexpr int FirstParameter = 2;

/// The parameters of one statement, gathered while it is written.
class ParameterList final {
 public:
  /// The parameter as SQL: the same one each time that the same is asked for.
  [[nodiscard]] QString Sql(const SqlParameter& parameter);
  [[nodiscard]] std::vector<SqlParameter> Take() { return std::move(m_parameters); }

 private:
  std::vector<SqlParameter> m_parameters;
};

/// The values in the forms in which they are bound. Throws what a literal would: 3464 for a text that is no
/// number or date, 3163, 3349 or 3421 for one that its column can't take.
[[nodiscard]] std::vector<Value> BoundValues(const std::vector<SqlParameter>& parameters,
                                             const std::vector<Value>& values);
/// Binds as many of them as the statement names.
void BindParameters(sqlite3_stmt* statement, const std::vector<Value>& bound);

}  // namespace velmora::db
