// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Labels.h"

#include <QList>
#include <QString>

class QHBoxLayout;

namespace velmora::ui {

/// What a control says beside its text: its tool tip, and its name for those who hear it.
struct Words {
  QString Tip{};
  QString Spoken{};
};

/// A control of a screen with its name and words.
template <typename T>
[[nodiscard]] T* NewControl(QWidget* parent, const QString& name, const Words& words = {}) {
  auto* control = new T(parent);
  control->SetName(name);
  control->setToolTip(words.Tip);
  if (!words.Spoken.isEmpty()) control->setAccessibleName(words.Spoken);
  return control;
}

/// A push button with its name, caption and tool tip.
[[nodiscard]] SSCommand* NewCommand(QWidget* parent, const QString& name, const QString& caption,
                                    const QString& tip = {});

/// A label with its name and caption; it names the control that is given as its buddy.
Label* NewLabel(QWidget* parent, const QString& name, const QString& caption, QWidget* buddy = nullptr);

/// The row of buttons at the foot of a dialog: some at its left end, some at its right.
[[nodiscard]] QHBoxLayout* NewButtonRow(const QList<QWidget*>& left, const QList<QWidget*>& right);

}  // namespace velmora::ui
