// SPDX-License-Identifier: MIT
#include "engine/values/Error.h"
#include "tools/ddbsql/Session.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

void Write(const QByteArray& answer) {
  std::fwrite(answer.constData(), 1, static_cast<std::size_t>(answer.size()), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

}  // namespace

// ddbsql FILE: asks the engine line by line. It opens the file, or makes it when there is none, reads one
// JSON object from each line of the standard input and writes one line of JSON for it:
//   {"sql": S}                             {"columns": [...], "rows": [[...]]} or {"changed": n}
//   {"table": T, "columns": [["Name", "Text", 50], ["N", "Long"]], "indexes": [[name, [columns], unique]]}
//   {"add": T, "values": {...}}            {"ok": true}, as for the line above
//   {"query": N, "sql": S}                 {"ok": true}
//   {"query": N}                           {"sql": S}
//   {"like": [pattern, value]}             {"value": true, false or null}
// A failure gives {"error": number, "text": ...}, and the next line goes on. When the file can't be opened,
// that is the one line written, and the exit code is 1.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: ddbsql FILE\n", stderr);
    return 2;
  }
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) return 1;
  try {
    velmora::tools::Session session(arguments.at(1));
    while (true) {
      const QByteArray line = input.readLine();
      if (line.isEmpty()) return 0;
      Write(session.Answer(line));
    }
  } catch (const velmora::db::Error& error) {
    Write(velmora::tools::Session::FailureOf(error));
    return 1;
  }
}
