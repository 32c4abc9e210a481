// SPDX-License-Identifier: MIT
#include "shell/ClockText.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int SecondsOfDay = 24 * 60 * 60;

}  // namespace

QString ClockText(QTime now) {
  const QLocale locale;
  const int hour = now.hour() % 12 == 0 ? 12 : now.hour() % 12;
  return QString::number(hour) + now.toString(u":mm "_s) +
         (now.hour() < 12 ? locale.amText() : locale.pmText());
}

QString StopwatchText(QTime now, QTime start) {
  const int passed = (start.secsTo(now) + SecondsOfDay) % SecondsOfDay;
  return QTime(0, 0).addSecs(passed).toString(u"hh:mm:ss"_s);
}

}  // namespace velmora
