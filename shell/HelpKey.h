// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace velmora {

/// The key F1: opens the help at the topic of the screen in front, a modal dialog too; at its contents where
/// there is no screen, or none with a topic. Over message boxes and open lists it is left to these.
class HelpKey final : public QObject {
 public:
  explicit HelpKey(QObject* parent);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
};

}  // namespace velmora
