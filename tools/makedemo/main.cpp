// SPDX-License-Identifier: MIT
#include "engine/values/Error.h"
#include "tools/makedemo/DemoFile.h"

#include <QCoreApplication>

#include <cstdio>

// makedemo FILE: makes the demonstration card file.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: makedemo FILE\n", stderr);
    return 2;
  }
  try {
    velmora::demo::MakeDemoFile(arguments.at(1));
  } catch (const velmora::db::Error& error) {
    std::fprintf(stderr, "makedemo: %s\n", error.what());
    return 1;
  }
  return 0;
}
