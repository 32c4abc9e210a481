// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <variant>

namespace velmora::db {

/// One value of a row: Null, a truth value, a whole number, a number, a text, or a date with its time.
/// Reading a Null as anything throws Error 94; ask IsNull() first where Null is an ordinary outcome.
class Value final {
 public:
  Value() = default;
  Value(bool truth) : m_data(truth) {}
  Value(int number) : m_data(std::int64_t{number}) {}
  Value(std::int64_t number) : m_data(number) {}
  Value(long long number) : m_data(std::int64_t{number}) {}
  Value(double number) : m_data(number) {}
  Value(QString text) : m_data(std::move(text)) {}
  Value(QStringView text) : m_data(text.toString()) {}
  Value(QDate date) : m_data(QDateTime(date, QTime(0, 0), Qt::UTC)) {}
  /// The clock reading counts, not the zone: dates are stored without one.
  Value(const QDateTime& moment);
  static Value Null() { return {}; }

  [[nodiscard]] bool IsNull() const { return std::holds_alternative<std::monostate>(m_data); }
  [[nodiscard]] bool IsText() const { return std::holds_alternative<QString>(m_data); }
  [[nodiscard]] bool IsTruth() const { return std::holds_alternative<bool>(m_data); }
  [[nodiscard]] bool IsWhole() const { return std::holds_alternative<std::int64_t>(m_data); }
  [[nodiscard]] bool IsNumber() const { return std::holds_alternative<double>(m_data) || IsWhole(); }
  [[nodiscard]] bool IsDate() const { return std::holds_alternative<QDateTime>(m_data); }

  /// As text: numbers in the program's one number form, truth as -1 or 0, dates in the short date order with
  /// four-digit years.
  [[nodiscard]] QString Text() const;
  /// As text, and Null as `otherwise`.
  [[nodiscard]] QString TextOr(const QString& otherwise) const { return IsNull() ? otherwise : Text(); }
  /// As a 32-bit whole number, halves to even; throws 3349 beyond the range, 3421 for a text that is no
  /// number.
  [[nodiscard]] std::int32_t Long() const;
  /// As a number: truth is -1 or 0, a date its days since 1899-12-30; 3421 for a text that is not a number.
  [[nodiscard]] double Number() const;
  /// False for zero alone; the words yes, no, true, false, on and off are read too.
  [[nodiscard]] bool Truth() const;
  /// Text is read in the system's short date order; 3421 when it is not a date.
  [[nodiscard]] QDateTime DateTime() const;
  /// The whole number itself, 64 bits; the value must be one.
  [[nodiscard]] std::int64_t Whole() const { return std::get<std::int64_t>(m_data); }

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, bool, std::int64_t, double, QString, QDateTime> m_data;
};

}  // namespace velmora::db
