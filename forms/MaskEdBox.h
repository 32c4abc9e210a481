// SPDX-License-Identifier: MIT
#pragma once

#include "forms/TextBox.h"

#include <QSet>

class QValidator;

namespace velmora::ui {

/// A box for a number. Its mask is a row of nines: as many places, each for a digit or a space. With a mask
/// the user can type and paste nothing else; a key that makes another character empties the selected text
/// only. A text that is there already, such as 12.5 or -3, stays and can be edited, whatever the mask says.
class MaskEdBox final : public TextBox {
  Q_OBJECT

 public:
  explicit MaskEdBox(QWidget* parent);

  [[nodiscard]] QString Mask() const { return m_mask; }
  /// An empty mask lets the user type anything. The text stays as it is.
  void SetMask(const QString& mask);
  /// Puts any text in, as TextBox does.
  void SetText(const QString& text);
  void Write(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// What the mask took nothing of is none.
  [[nodiscard]] bool IsEdit() const override { return text() != m_before; }

 private:
  friend class MaskValidator;
  [[nodiscard]] bool Takes(QChar character) const;
  /// What remains of a text that the user's edit would make: the characters that the mask takes.
  [[nodiscard]] QString Filtered(const QString& edited, int& cursor) const;
  void Accept(const QString& text);

  QString m_mask;
  QValidator* m_validator;
  /// The text before the edit that is being looked at.
  QString m_before;
  /// Every text since the last load: undoing and redoing lead back to them.
  QSet<QString> m_known;
};

}  // namespace velmora::ui
