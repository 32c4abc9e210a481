// SPDX-License-Identifier: MIT
#include "forms/Makers.h"

#include <QHBoxLayout>

namespace velmora::ui {

SSCommand* NewCommand(QWidget* parent, const QString& name, const QString& caption, const QString& tip) {
  auto* button = NewControl<SSCommand>(parent, name, {.Tip = tip});
  button->SetCaption(caption);
  return button;
}

Label* NewLabel(QWidget* parent, const QString& name, const QString& caption, QWidget* buddy) {
  auto* label = NewControl<Label>(parent, name);
  label->SetCaption(caption);
  label->setBuddy(buddy);
  return label;
}

QHBoxLayout* NewButtonRow(const QList<QWidget*>& left, const QList<QWidget*>& right) {
  auto* row = new QHBoxLayout;
  for (QWidget* button : left) row->addWidget(button);
  row->addStretch();
  for (QWidget* button : right) row->addWidget(button);
  return row;
}

}  // namespace velmora::ui
