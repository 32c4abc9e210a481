// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/ValueListDialog.h"

namespace velmora {

/// The value list of the card editor. A new value counts as already there when a row holds exactly the typed
/// text.
class EnterItem final : public ValueListDialog {
  Q_OBJECT

 public:
  explicit EnterItem(ValueListField field);

 protected:
  [[nodiscard]] bool IsThere(const ValueLists& lists, const QString& value) override;

 private:
  /// Once a value was already there, the dialog takes no more until it is opened again.
  bool m_sawDuplicate = false;
};

}  // namespace velmora
