// SPDX-License-Identifier: MIT
#include "tests/engine/CardFileOnDisk.h"

#include "engine/sqlite/ConnectionSettings.h"
#include "engine/sqlite/Quoting.h"
#include "tests/support/TestDatabase.h"

#include <QDir>

#include <csignal>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora::test {

using namespace Qt::StringLiterals;

namespace {

/// Ends a child without running what its parent has registered for its own end.
[[noreturn]] void Leave() { ::_exit(0); }

}  // namespace

db::ConnectionHandle Connect(const QString& path) {
  db::ConnectionHandle connection = db::OpenConnection(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  db::ConfigureConnection(connection.get());
  return connection;
}

void AddCard(sqlite3* connection, int number, const QString& name) {
  const db::StatementHandle insert = db::Prepare(
      connection,
      u"INSERT INTO MainData(\"Index@\", Name, Notes, Paid, Active, Due) VALUES(?1, ?2, ?3, ?4, ?5, ?6)");
  const QByteArray text = name.toUtf8();
  // Every seventh card is too long for a page.
  const QByteArray notes = number % 7 == 0 ? QByteArray("note ").repeated(100 + number * 10) : "note " + text;
  sqlite3_bind_int(insert.get(), 1, number);
  sqlite3_bind_text(insert.get(), 2, text.constData(), -1, SQLITE_STATIC);
  sqlite3_bind_text(insert.get(), 3, notes.constData(), -1, SQLITE_STATIC);
  sqlite3_bind_double(insert.get(), 4, number / 4.0);
  sqlite3_bind_int(insert.get(), 5, number % 2 == 0 ? -1 : 0);
  if (number % 3 != 0) sqlite3_bind_text(insert.get(), 6, "2024-05-17", -1, SQLITE_STATIC);
  db::Check(connection, sqlite3_step(insert.get()));
}

CardFileOnDisk::CardFileOnDisk(int cards, int pageSize) : m_path(m_folder.filePath(u"cards.ddb"_s)) {
  const db::ConnectionHandle connection = Connect(m_path);
  db::Run(connection.get(), u"PRAGMA synchronous=OFF; PRAGMA page_size=%1;"_s.arg(pageSize));
  db::Run(connection.get(),
          uR"(
      PRAGMA user_version = 7;
      CREATE TABLE "MainData" ("Index@" INTEGER, "Name" TEXT(50) COLLATE NOCASE,
                               "Notes" LONGTEXT COLLATE NOCASE, "Paid" CURRENCY,
                               "Active" YESNO NOT NULL DEFAULT 0);
      CREATE UNIQUE INDEX "MainData.Index@" ON "MainData" ("Index@");
      CREATE TABLE "Location" ("Place" TEXT(30) COLLATE NOCASE, "Code" INTEGER,
                               "Land" TEXT(30) COLLATE NOCASE);
      CREATE INDEX "Location.Place" ON "Location" ("Place");
      CREATE TABLE ".Queries" ("Name" TEXT COLLATE NOCASE, "SQL" LONGTEXT);
      INSERT INTO ".Queries" VALUES ('All', 'SELECT *' || char(13, 10) || 'FROM MainData;');
      BEGIN;
  )");
  // Cards from before the last column was added, a third of them deleted since.
  for (int number = 1; number <= cards; ++number) {
    db::Run(connection.get(),
            u"INSERT INTO MainData(\"Index@\", Name, Notes) VALUES(-%1, 'Old card %1', 'x')"_s.arg(number));
  }
  db::Run(connection.get(), u"ALTER TABLE MainData ADD COLUMN Due DATE DEFAULT '2001-01-01'");
  db::Run(connection.get(), u"DELETE FROM MainData WHERE rowid % 3 = 0");
  for (int number = 1; number <= cards; ++number) {
    AddCard(connection.get(), number, u"Müller %1"_s.arg(number));
    db::Run(connection.get(), u"INSERT INTO Location VALUES('Place %1', %1 * 7, NULL)"_s.arg(number));
  }
  db::Run(connection.get(), u"COMMIT");
}

QStringList CardFileOnDisk::Names() const {
  return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray CardFileOnDisk::ReadAll(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return file.readAll();
}

void CardFileOnDisk::WriteAll(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
  ASSERT_EQ(file.write(bytes), bytes.size());
}

QStringList CardFileOnDisk::RowsOf(const QString& path) {
  const db::ConnectionHandle connection = Connect(path);
  QStringList lines;
  const db::StatementHandle tables =
      db::Prepare(connection.get(),
                  u"SELECT name FROM sqlite_schema WHERE type = 'table' AND substr(name, 1, 7) <> 'sqlite_'");
  while (sqlite3_step(tables.get()) == SQLITE_ROW) {
    const QString table = db::ColumnText(tables.get(), 0);
    const db::StatementHandle rows =
        db::Prepare(connection.get(), u"SELECT rowid, * FROM "_s + db::QuoteName(table) + u" NOT INDEXED"_s);
    int result = SQLITE_OK;
    while ((result = sqlite3_step(rows.get())) == SQLITE_ROW) {
      QStringList values{table};
      for (int column = 0; column < sqlite3_column_count(rows.get()); ++column) {
        const bool isNull = sqlite3_column_type(rows.get(), column) == SQLITE_NULL;
        values.append(isNull ? u"-"_s : db::ColumnText(rows.get(), column));
      }
      lines.append(values.join(u'|'));
    }
    db::Check(connection.get(), result);
  }
  lines.sort();
  return lines;
}

QString CardFileOnDisk::Verdict(const QString& path) {
  const db::ConnectionHandle connection = Connect(path);
  const db::StatementHandle check = db::Prepare(connection.get(), u"PRAGMA integrity_check");
  db::Check(connection.get(), sqlite3_step(check.get()));
  return db::ColumnText(check.get(), 0);
}

struct stat CardFileOnDisk::StatusOf(const QString& path) {
  struct stat status = {};
  EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0) << qPrintable(path);
  return status;
}

std::optional<int> InAnotherProcess(const std::function<int()>& function) {
  std::array<int, 2> pipe{};
  EXPECT_EQ(::pipe(pipe.data()), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const int result = function();
    static_cast<void>(!::write(pipe[1], &result, sizeof result));
    Leave();
  }
  ::close(pipe[1]);
  int result = 0;
  const bool answered = ::read(pipe[0], &result, sizeof result) == sizeof result;
  ::close(pipe[0]);
  ::waitpid(child, nullptr, 0);
  return answered ? std::optional(result) : std::nullopt;
}

AnotherProcess::AnotherProcess(const std::function<std::shared_ptr<void>()>& function) {
  std::array<int, 2> pipe{};
  EXPECT_EQ(::pipe(pipe.data()), 0);
  m_process = ::fork();
  if (m_process == 0) {
    const std::shared_ptr<void> kept = function();
    static_cast<void>(!::write(pipe[1], "!", 1));
    while (true) ::pause();
  }
  ::close(pipe[1]);
  char sign = 0;
  EXPECT_EQ(::read(pipe[0], &sign, 1), 1) << "the other process has failed";
  ::close(pipe[0]);
}

AnotherProcess::~AnotherProcess() { End(); }

void AnotherProcess::End() {
  if (m_process < 0) return;
  ::kill(m_process, SIGKILL);
  ::waitpid(m_process, nullptr, 0);
  m_process = -1;
}

int ErrorNumberAsUser(const std::function<void()>& call) {
  const std::optional<int> number = InAnotherProcess([&] {
    __user_cap_header_struct header{.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
    if (::syscall(SYS_capset, &header, none.data()) != 0) return -1;
    return ErrorNumberOf(call);
  });
  return number.value_or(-1);
}

}  // namespace velmora::test
