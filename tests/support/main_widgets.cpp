// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Settings and locale are the test's own: nothing of the machine's user is read or written.
int main(int argc, char** argv) {
  QTemporaryDir home;
  qputenv("HOME", home.path().toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", (home.path() + QLatin1String("/config")).toLocal8Bit());
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
