// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/ValueListDialog.h"

namespace velmora {

/// The value list of the card viewer. A new value counts as already there when a row equals it without the
/// spaces around it, whatever the case.
class EnterShow final : public ValueListDialog {
  Q_OBJECT

 public:
  explicit EnterShow(ValueListField field);

 protected:
  [[nodiscard]] bool IsThere(const ValueLists& lists, const QString& value) override;
};

}  // namespace velmora
