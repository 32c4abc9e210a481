// SPDX-License-Identifier: MIT
#include "cardfile/Cards.h"

#include "cardfile/CardFileSchema.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

std::optional<std::int32_t> FirstNumber(const db::Recordset& rows) {
  if (rows.AtEnd()) return std::nullopt;
  return rows[schema::CardNumber.View()].Long();
}

}  // namespace

bool Cards::IsEmpty() const { return m_file.OpenRecordset(u"Select * from MainData").AtEnd(); }

db::Recordset Cards::CardOf(std::int32_t number) const {
  return m_file.OpenRecordset(u"Select * from MainData WHERE [Index@] = ?", {number});
}

db::Recordset Cards::ForNewCard() const {
  return m_file.OpenRecordset(u"Select * from MainData WHERE FALSE");
}

std::optional<std::int32_t> Cards::FirstStored() const {
  return FirstNumber(m_file.OpenRecordset(u"Select * from MainData"));
}

std::optional<std::int32_t> Cards::Highest() const {
  return FirstNumber(m_file.OpenRecordset(u"Select [Index@] from MainData ORDER BY [Index@] DESC"));
}

std::optional<std::int32_t> Cards::NearestAbove(std::int64_t number) const {
  return FirstNumber(
      m_file.OpenRecordset(u"Select [Index@] from MainData WHERE [Index@] > ? ORDER BY [Index@]", {number}));
}

std::optional<std::int32_t> Cards::NearestBelow(std::int64_t number) const {
  return FirstNumber(m_file.OpenRecordset(
      u"Select [Index@] from MainData WHERE [Index@] < ? ORDER BY [Index@] DESC", {number}));
}

std::int64_t Cards::CountIn(std::int64_t low, std::int64_t high) const {
  const db::Recordset count = m_file.OpenRecordset(
      u"Select Count(*) from MainData WHERE [Index@] > ? AND [Index@] <= ?", {low, high});
  return static_cast<std::int64_t>(count.At(0).Number());
}

db::Recordset Cards::With(const QString& column, const QString& text) const {
  return m_file.OpenRecordset(u"Select * from MainData where "_s + Bracketed(column) + u" = ?"_s, {text});
}

db::Recordset Cards::Containing(const QString& column, const QString& pattern) const {
  return m_file.OpenRecordset(u"Select * from MainData where "_s + Bracketed(column) + u" Like ?"_s,
                              {u'*' + pattern + u'*'});
}

void Cards::Delete(std::int32_t number) const {
  m_file.Execute(u"Delete * from MainData WHERE [Index@] = ?", {number});
}

void Cards::DeleteCallsAndPrices(std::int32_t number) const {
  m_file.Execute(u"Delete * from Telefon WHERE [Index] = ?", {number});
  m_file.Execute(u"Delete * from PriceList WHERE [Index] = ?", {number});
}

}  // namespace velmora
