// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QPointer>
#include <QStringList>

#include <cstdint>

namespace velmora {

namespace ui {
class ListBox;
}

/// A dialog that picks the conditions of one field of the query screen. It knows the field's list there and
/// replaces what stands in it; what the list held before it does not show.
class ConditionPicker : public ui::Form {
  Q_OBJECT

 public:
  /// The element number of the field on the query screen; -1 when the list is gone.
  [[nodiscard]] std::int32_t ItemIndex() const;

 protected:
  ConditionPicker(const QString& name, const QString& caption, ui::ListBox& conditions);

  /// Writes the field's conditions, the first as the current line.
  void Replace(const QStringList& conditions);

 private:
  QPointer<ui::ListBox> m_conditions;
};

}  // namespace velmora
