// SPDX-License-Identifier: MIT
#include "forms/MaskEdBox.h"

#include <QKeyEvent>
#include <QValidator>

#include <algorithm>

namespace velmora::ui {

/// Looks at each edit in the box before it is seen.
class MaskValidator final : public QValidator {
 public:
  explicit MaskValidator(MaskEdBox* box) : QValidator(box), m_box(box) {}
  State validate(QString& input, int& cursor) const override {
    if (!m_box->m_known.contains(input)) input = m_box->Filtered(input, cursor);
    return Acceptable;
  }

 private:
  MaskEdBox* m_box;
};

MaskEdBox::MaskEdBox(QWidget* parent) : TextBox(parent), m_validator(new MaskValidator(this)) {
  Accept({});
  connect(this, &QLineEdit::textChanged, this, &MaskEdBox::Accept);
}

void MaskEdBox::SetMask(const QString& mask) {
  m_mask = mask;
  setValidator(mask.isEmpty() ? nullptr : m_validator);
}

void MaskEdBox::SetText(const QString& text) {
  m_known = {text};
  TextBox::SetText(text);
  m_known = {text};
}

void MaskEdBox::Write(const QString& text) {
  m_known.insert(text);
  TextBox::Write(text);
}

void MaskEdBox::keyPressEvent(QKeyEvent* event) {
  constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString typed = event->text();
  const bool character = !typed.isEmpty() && typed.at(0).isPrint() && !(event->modifiers() & commands);
  if (m_mask.isEmpty() || !character || Takes(typed.at(0))) {
    TextBox::keyPressEvent(event);
    return;
  }
  event->accept();
  Q_EMIT KeyPress(typed.at(0).unicode());
  if (hasSelectedText() && !isReadOnly()) del();
}

bool MaskEdBox::Takes(QChar character) const {
  return character == u' ' || (character >= u'0' && character <= u'9');
}

QString MaskEdBox::Filtered(const QString& edited, int& cursor) const {
  const auto [oldMiddle, newMiddle] =
      std::mismatch(m_before.begin(), m_before.end(), edited.begin(), edited.end());
  const qsizetype prefix = newMiddle - edited.begin();
  qsizetype suffix = 0;
  const qsizetype most = std::min(m_before.size(), edited.size()) - prefix;
  while (suffix < most && m_before.at(m_before.size() - 1 - suffix) == edited.at(edited.size() - 1 - suffix))
    ++suffix;

  QString inserted = edited.mid(prefix, edited.size() - prefix - suffix);
  inserted.removeIf([this](QChar character) { return !Takes(character); });
  const qsizetype room = std::max<qsizetype>(0, m_mask.size() - prefix - suffix);
  inserted.truncate(room);
  QString result = edited.left(prefix) + inserted + edited.right(suffix);
  if (result != edited) cursor = static_cast<int>(prefix + inserted.size());
  return result;
}

void MaskEdBox::Accept(const QString& text) {
  m_before = text;
  m_known.insert(text);
}

}  // namespace velmora::ui
