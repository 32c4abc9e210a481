// SPDX-License-Identifier: MIT
#include "engine/text/Collation.h"
#include "engine/text/LikePattern.h"

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <cstdlib>

using namespace velmora::db;

// A pattern and two values, parted by zero bytes: no crash, and one order whichever way two texts are
// compared.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray all(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QList<QByteArray> parts = all.split('\0');
  const QByteArray left = parts.value(1);
  const QByteArray right = parts.value(2);
  const LikePattern pattern(QString::fromUtf8(parts.value(0)));
  static_cast<void>(pattern.Matches(left));
  const int forth = CompareText(QByteArrayView(left), QByteArrayView(right));
  const int back = CompareText(QByteArrayView(right), QByteArrayView(left));
  if ((forth < 0) != (back > 0) || (forth == 0) != (back == 0)) std::abort();
  return 0;
}
