// SPDX-License-Identifier: MIT
#include "forms/CutText.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace velmora::ui {

using namespace Qt::StringLiterals;

bool TellCutText(QEvent& event, QWidget& widget, const QString& whole) {
  if (!widget.toolTip().isEmpty()) return false;
  // The tip guesses rich text from its looks; escaped and marked as such it stays the plain text that it is.
  QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(),
                     u"<span>%1</span>"_s.arg(whole.toHtmlEscaped()), &widget);
  return true;
}

}  // namespace velmora::ui
