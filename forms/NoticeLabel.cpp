// SPDX-License-Identifier: MIT
#include "forms/NoticeLabel.h"

#include "forms/NoticePlace.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPalette>

#include <algorithm>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Rim = 4;
/// Longer lines are hard to read.
constexpr int LongestLine = 60;

QAccessibleInterface* SpokenNotice(const QString& /*className*/, QObject* object) {
  auto* notice = qobject_cast<NoticeLabel*>(object);
  return notice != nullptr ? new QAccessibleWidget(notice, QAccessible::AlertMessage) : nullptr;
}

}  // namespace

NoticeLabel::NoticeLabel(QWidget* screen) : QLabel(screen) {
  [[maybe_unused]] static const bool spoken = (QAccessible::installFactory(SpokenNotice), true);
  setObjectName(u"Notice"_s);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
  setMargin(Rim);
}

void NoticeLabel::Tell(const QString& text, const QRect& beside) {
  const QRect room = parentWidget()->rect();
  const int frame = 2 * (Rim + frameWidth());
  const int widest = std::min(room.width(), LongestLine * fontMetrics().averageCharWidth() + frame);
  const QRect lines =
      fontMetrics().boundingRect(QRect(0, 0, widest - frame, 0), static_cast<int>(Qt::TextWordWrap), text);
  const QSize size(std::min(widest, lines.width() + frame + 1), lines.height() + frame);
  setGeometry(PlaceBeside(beside, size, room));
  // What was there before it had its words is told when it gets them.
  show();
  raise();
  setText(text);
  setAccessibleName(text);
}

}  // namespace velmora::ui
