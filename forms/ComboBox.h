// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QComboBox>

namespace velmora::ui {

enum class ComboMode {
  /// A box to type in, with a list to pick from.
  FreeText,
  /// A list to pick from.
  DropDownList,
};

/// A text with a list that drops down. Adding entries picks none. The wheel turns it only while it has the
/// focus.
class ComboBox : public QComboBox, public Control {
  Q_OBJECT

 public:
  /// In the mode FreeText.
  explicit ComboBox(QWidget* parent);

  void SetMode(ComboMode mode);
  void AddItem(const QString& text);
  void InsertItem(int index, const QString& text);
  void RemoveItem(int index);
  /// Empties the list and the text.
  void Clear();
  [[nodiscard]] int ListCount() const { return count(); }
  /// The text of an entry; empty when there is no such entry.
  [[nodiscard]] QString List(int index) const { return itemText(index); }
  [[nodiscard]] QString Text() const { return currentText(); }
  /// Shows a text without a signal. A drop-down list picks the first entry of that text, none when there is
  /// none.
  void SetText(const QString& text);
  /// The entry picked; -1 when there is none, or when the text is no longer the entry's.
  [[nodiscard]] int ListIndex() const;
  /// Picks an entry without a signal; -1 for none, which empties the text.
  void SetListIndex(int index) { setCurrentIndex(index); }

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// The user picked an entry.
  void Click();
  /// The user typed.
  void Change();
  void EnterPressed();
  void GotFocus();
  void LostFocus();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Insert(int index, const QString& text);
};

}  // namespace velmora::ui
