// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "resources/Text.h"

#include <QPointer>

namespace velmora {

class ItemSelector;

namespace db {
class Recordset;
}

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

  /// Is given the rows of the table when they have been read.
  virtual void Keep(db::Recordset rows);
  /// Writes a new value, unless it counts as already there; true when it wrote.
  [[nodiscard]] virtual bool Store(const QString& value) = 0;

  [[nodiscard]] const QString& Column() const { return m_field.Name; }
  [[nodiscard]] QString Table() const;

 private:
  ui::SSCommand* MakeButton(const QString& name, const QString& caption, const QString& tip);
  void SetupControls(const ValueListDesign& design);
  void SetupLayout();
  void LoadValues();
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
