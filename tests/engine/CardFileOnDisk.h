// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Connection.h"
#include "engine/sqlite/SqliteHandle.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

/// GoogleTest would show a text as a list of its characters.
inline void PrintTo(const QString& text, std::ostream* out) { *out << qPrintable(text); }

namespace velmora::test {

/// A file with cards, as other programs and the disk see it: bytes, modes, names beside it. It lies in a
/// folder of its own and is closed.
class CardFileOnDisk final {
 public:
  explicit CardFileOnDisk(int cards = 200, int pageSize = 1024);

  [[nodiscard]] const QString& Path() const { return m_path; }
  [[nodiscard]] QString PathOf(const QString& name) const { return m_folder.filePath(name); }
  [[nodiscard]] QString Folder() const { return m_folder.path(); }
  /// All names in the folder.
  [[nodiscard]] QStringList Names() const;
  [[nodiscard]] QByteArray Bytes() const { return ReadAll(m_path); }
  void Write(const QByteArray& bytes) const { WriteAll(m_path, bytes); }
  [[nodiscard]] QStringList Rows() const { return RowsOf(m_path); }

  [[nodiscard]] static QByteArray ReadAll(const QString& path);
  static void WriteAll(const QString& path, const QByteArray& bytes);
  /// All rows of all tables, each as "table|row id|value|...", sorted.
  [[nodiscard]] static QStringList RowsOf(const QString& path);
  /// What SQLite's full check says: "ok".
  [[nodiscard]] static QString Verdict(const QString& path);
  [[nodiscard]] static struct stat StatusOf(const QString& path);

 private:
  QTemporaryDir m_folder;
  QString m_path;
};

/// The seed of a test's random numbers: always the same, unless VELMORA_SEED asks for other runs.
[[nodiscard]] inline unsigned Seed(unsigned usual) {
  return usual + static_cast<unsigned>(qEnvironmentVariableIntValue("VELMORA_SEED"));
}

/// A connection with the settings of the program, made for a new or an existing file.
[[nodiscard]] db::ConnectionHandle Connect(const QString& path);
/// Adds a card as the program does, in a transaction of its own.
void AddCard(sqlite3* connection, int number, const QString& name);

/// Runs a function in a process of its own and gives what it returned; nothing when the process died.
[[nodiscard]] std::optional<int> InAnotherProcess(const std::function<int()>& function);

/// A process that runs a function and then stays, until it is told to go or this object is gone.
class AnotherProcess final {
 public:
  /// Returns when the function has returned there.
  explicit AnotherProcess(const std::function<std::shared_ptr<void>()>& function);
  ~AnotherProcess();
  AnotherProcess(const AnotherProcess&) = delete;
  AnotherProcess& operator=(const AnotherProcess&) = delete;
  void End();

 private:
  int m_process = -1;
};

/// As ErrorNumberOf, in a process of its own that heeds the modes of files, also when an administrator runs
/// the tests.
[[nodiscard]] int ErrorNumberAsUser(const std::function<void()>& call);

}  // namespace velmora::test
