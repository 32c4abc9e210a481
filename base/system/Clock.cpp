// SPDX-License-Identifier: MIT
#include "base/system/Clock.h"

namespace velmora {

namespace {

std::function<QDateTime()>& Replacement() {
  static std::function<QDateTime()> now;
  return now;
}

}  // namespace

QDateTime Clock::Now() { return Replacement() ? Replacement()() : QDateTime::currentDateTime(); }

void Clock::Set(std::function<QDateTime()> now) { Replacement() = std::move(now); }

}  // namespace velmora
