// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/ValueListDialog.h"
#include "engine/rows/Recordset.h"

#include <optional>

namespace velmora {

/// The value list of the card editor. A new value counts as already there when a row holds exactly the typed
/// text. The rows stay open as long as the dialog.
class EnterItem final : public ValueListDialog {
  Q_OBJECT

 public:
  explicit EnterItem(ValueListField field);

 protected:
  void OnUnload() override;
  void Keep(db::Recordset rows) override;
  [[nodiscard]] bool Store(const QString& value) override;

 private:
  [[nodiscard]] bool Holds(const QString& value);
  void GoToFirst();

  std::optional<db::Recordset> m_rows;
  /// Once a value was already there, the dialog takes no more until it is opened again.
  bool m_sawDuplicate = false;
};

}  // namespace velmora
