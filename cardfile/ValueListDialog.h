// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "resources/Text.h"

#include <QPointer>
#include <QStringView>

namespace velmora {

class ItemSelector;
class ValueLists;

namespace ui {
class ListBox;
class SSCommand;
class TextBox;
}  // namespace ui

/// What a card screen hands to the value list of one of its text fields: the field's name, which names the
/// table of its values, and the box to fill in.
struct ValueListField {
  QString Name;
  QPointer<ui::TextBox> Box;
};

/// In what the two value lists differ to the eye.
struct ValueListDesign {
  QStringView Screen;
  QStringView DeleteButton;
  /// Empty for none.
  QString EnterTip;
  strings::Text UpdateTip;
};

/// The dialog with the values that the user keeps for a text field: adds and deletes values, and writes the
/// chosen ones into the card. Adding and deleting reach the file at once, so Cancel takes back nothing but
/// the choice. When a value counts as already there is the kind's own.
class ValueListDialog : public ui::Form {
  Q_OBJECT

 protected:
  ValueListDialog(const ValueListDesign& design, ValueListField field);

  void OnLoad() override;
  void resizeEvent(QResizeEvent* event) override;

  /// Whether a new value counts as already there. May throw db::Error.
  [[nodiscard]] virtual bool IsThere(const ValueLists& lists, const QString& value) = 0;

  [[nodiscard]] const QString& Field() const { return m_field.Name; }

 private:
  void SetupControls(const ValueListDesign& design);
  void SetupLayout();
  void AddClick();
  void DeleteClick();
  void UpdateClick();

  ValueListField m_field;
  ui::TextBox* EnterText = nullptr;
  ui::SSCommand* cmdAdd = nullptr;
  /// Keeps the room for ItemSelector1 as wide as the list.
  QWidget* m_finder = nullptr;
  ItemSelector* ItemSelector1 = nullptr;
  ui::ListBox* ListItem = nullptr;
  ui::SSCommand* m_delete = nullptr;
  ui::SSCommand* Command3 = nullptr;
  ui::SSCommand* CanBut = nullptr;
};

}  // namespace velmora
