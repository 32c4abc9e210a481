// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

namespace velmora {

namespace ui {
class ListBox;
class TextBox;
}  // namespace ui

/// A box that finds a line of a list as the user types: the first that begins with the text becomes the
/// current one, at the top of the view, and is chosen. The choice that the box made before is taken back;
/// lines that the user chose stay chosen. The list belongs to the screen.
class ItemSelector final : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  explicit ItemSelector(QWidget* parent);

  void SetChildCtrl(ui::ListBox* list);
  /// In twips; the height is always that of a line.
  void SetWidth(int width);
  [[nodiscard]] ui::TextBox& EnterText() const { return *m_enterText; }
  void SetFocus() override;

 Q_SIGNALS:
  void OnPressEnter();

 protected:
  void OnPlaced() override;

 private:
  void Find();
  void Choose(int line);
  /// The user's own doing on the line that the box chose makes it the user's.
  void NoteSelection();

  ui::TextBox* m_enterText;
  QPointer<ui::ListBox> m_list;
  QMetaObject::Connection m_watch;
  /// The line that is chosen by this box alone.
  QPersistentModelIndex m_chosen;
};

}  // namespace velmora
