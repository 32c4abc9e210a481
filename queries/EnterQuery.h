// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QPointer>

namespace velmora {

namespace ui {
class ListBox;
class TextBox;
}  // namespace ui

/// The list of a text field's values behind one of SelectQ's boxes: the chosen ones become one text in that
/// box, to be looked for as a whole.
class EnterQuery final : public ui::Form {
  Q_OBJECT

 public:
  EnterQuery(const QString& field, ui::TextBox& box);

 protected:
  void OnLoad() override;

 private:
  void UpdateClick();

  QString m_field;
  QPointer<ui::TextBox> m_box;
  ui::ListBox* ListItem = nullptr;
};

}  // namespace velmora
