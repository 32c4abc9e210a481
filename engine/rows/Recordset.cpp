// SPDX-License-Identifier: MIT
#include "engine/rows/Recordset.h"

#include "engine/rows/RecordsetCore.h"
#include "engine/values/Error.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

RecordsetCore& Opened(const std::unique_ptr<RecordsetCore>& core) {
  if (!core) throw Error(ErrorCode::ObjectClosed, u"The recordset has been closed."_s);
  return *core;
}

}  // namespace

Recordset::Recordset(std::unique_ptr<RecordsetCore> core) : m_core(std::move(core)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::AtEnd() const { return Opened(m_core).AtEnd(); }
bool Recordset::AtStart() const { return Opened(m_core).AtStart(); }
void Recordset::MoveFirst() { Opened(m_core).MoveFirst(); }
void Recordset::MoveLast() { Opened(m_core).MoveLast(); }
void Recordset::MoveNext() { Opened(m_core).MoveNext(); }
void Recordset::MovePrevious() { Opened(m_core).MovePrevious(); }
void Recordset::MoveTo(std::int64_t position) { Opened(m_core).MoveTo(position); }
std::int64_t Recordset::RecordCount() const { return Opened(m_core).RecordCount(); }

std::optional<std::int64_t> Recordset::FindText(int column, const QString& text, std::int64_t from,
                                                FindWay way) const {
  static_cast<void>(FieldAt(column));
  return Opened(m_core).FindText(column, text, from, way);
}

int Recordset::FieldCount() const { return static_cast<int>(Opened(m_core).Columns().size()); }

const Field& Recordset::FieldAt(int position) const {
  const std::vector<Field>& columns = Opened(m_core).Columns();
  if (position < 0 || static_cast<std::size_t>(position) >= columns.size()) {
    throw Error(ErrorCode::ItemNotFound, u"There is no column number %1."_s.arg(position));
  }
  return columns[static_cast<std::size_t>(position)];
}

Value Recordset::operator[](QStringView column) const {
  RecordsetCore& core = Opened(m_core);
  return core.At(core.ColumnOf(column));
}

Value Recordset::At(int position) const { return Opened(m_core).At(position); }
void Recordset::AddNew() { Opened(m_core).AddNew(); }
void Recordset::Edit() { Opened(m_core).Edit(); }

void Recordset::Set(QStringView column, const Value& value) {
  RecordsetCore& core = Opened(m_core);
  core.Set(core.ColumnOf(column), value);
}

void Recordset::Update() { Opened(m_core).Update(); }
void Recordset::CancelUpdate() { Opened(m_core).CancelUpdate(); }
void Recordset::Delete() { Opened(m_core).Delete(); }
void Recordset::Close() { m_core.reset(); }

}  // namespace velmora::db
