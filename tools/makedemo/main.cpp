// SPDX-License-Identifier: MIT
#include "engine/values/Error.h"
#include "tools/makedemo/DemoFile.h"
#include "tools/makedemo/Samples.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

// makedemo FILE: makes the demonstration card file. makedemo --samples FOLDER: makes the sample files anew.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const bool forSamples = arguments.value(1) == QStringLiteral("--samples");
  if (arguments.size() != (forSamples ? 3 : 2)) {
    std::fputs("usage: makedemo FILE\n       makedemo --samples FOLDER\n", stderr);
    return 2;
  }
  try {
    if (forSamples) {
      velmora::demo::MakeSamples(arguments.last());
    } else {
      velmora::demo::MakeDemoFile(arguments.last());
    }
  } catch (const velmora::db::Error& error) {
    std::fprintf(stderr, "makedemo: %s\n", error.what());
    return 1;
  }
  return 0;
}
