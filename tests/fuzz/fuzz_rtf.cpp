// SPDX-License-Identifier: MIT
// Any bytes are read as a document, without a fault and without more text than they hold.
#include "shell/RtfText.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const QByteArray& document : {bytes, "{\\rtf1 " + bytes}) {
    qsizetype length = 0;
    for (const velmora::RtfParagraph& paragraph : velmora::ReadRtf(document)) {
      for (const velmora::RtfRun& run : paragraph.Runs) length += run.Text.size();
    }
    if (length > document.size()) std::abort();
  }
  return 0;
}
