// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestDatabase.h"

namespace velmora::test {

using namespace Qt::StringLiterals;

/// A table T of the numbers 1 to `count` with a unique index on them.
class Numbers {
 public:
  explicit Numbers(int count) {
    m_file.Table(u"T"_s,
                 {{u"N"_s, db::FieldType::Long},
                  {u"Name"_s, db::FieldType::Text, 10},
                  {u"Ok"_s, db::FieldType::YesNo}},
                 {{u"I"_s, {u"N"_s}, true, false}});
    for (int number = 1; number <= count; ++number) m_file.Add(u"T", {{u"N"_s, number}});
  }
  [[nodiscard]] db::Recordset Open(QStringView source = u"T") const { return m_file->OpenRecordset(source); }
  const TestDatabase& operator*() const { return m_file; }
  db::Database* operator->() const { return &*m_file; }

 private:
  TestDatabase m_file;
};

inline std::vector<std::int32_t> AllNumbers(db::Recordset& rows) {
  std::vector<std::int32_t> numbers;
  if (rows.RecordCount() > 0) {
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) numbers.push_back(rows[u"N"].Long());
  }
  return numbers;
}

}  // namespace velmora::test
