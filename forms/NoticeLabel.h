// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace velmora::ui {

/// The line of a notice on its screen. Assistive technology takes it for an alert.
class NoticeLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit NoticeLabel(QWidget* screen);
  /// Shows the text beside that part of the screen, broken into lines where it has to be.
  void Tell(const QString& text, const QRect& beside);
};

}  // namespace velmora::ui
