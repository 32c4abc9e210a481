// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QListView>
#include <QStringList>

namespace velmora::ui {

class ListModel;

enum class ListChoice {
  /// One line at most is chosen: the current one.
  Single,
  /// A click or the space bar chooses a line or takes the choice back; the current line is another matter.
  Multiple,
};

/// A list of texts. It has no current line until the user picks one or the program sets it, not even when it
/// gets the focus.
class ListBox : public QListView, public Control {
  Q_OBJECT

 public:
  explicit ListBox(QWidget* parent);

  void SetMode(ListChoice mode);
  void AddItem(const QString& text);
  void AddItems(const QStringList& texts);
  void InsertItem(int index, const QString& text);
  /// Takes a line out. When it was the current one, there is none afterwards.
  void RemoveItem(int index);
  void Clear();
  [[nodiscard]] int ListCount() const;
  /// The text of a line; empty when there is no such line.
  [[nodiscard]] QString List(int index) const;
  /// The texts of all lines, and of those that are chosen, from top to bottom.
  [[nodiscard]] QStringList Lines() const;
  [[nodiscard]] QStringList SelectedLines() const;
  /// The text of the current line; empty when there is none.
  [[nodiscard]] QString Text() const { return List(ListIndex()); }
  /// The current line, or -1.
  [[nodiscard]] int ListIndex() const;
  /// Makes a line the current one, in single mode the chosen one too, without a Click; -1 for none.
  void SetListIndex(int index);
  [[nodiscard]] bool Selected(int index) const;
  /// Chooses a line or takes the choice back, without a Click.
  void SetSelected(int index, bool selected);
  /// The line at the top of the view.
  [[nodiscard]] int TopIndex() const;
  void SetTopIndex(int index);

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// The user picked a line, by mouse or by keys.
  void Click();
  void DblClick();
  void EnterPressed();
  void GotFocus();
  void LostFocus();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] bool Has(int index) const { return index >= 0 && index < ListCount(); }
  ListModel* m_model;
};

}  // namespace velmora::ui
