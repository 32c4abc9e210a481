// SPDX-License-Identifier: MIT
#include "engine/DBEngine.h"
#include "tests/engine/AnyCardFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

namespace {

using namespace Qt::StringLiterals;
using namespace velmora;

constexpr std::size_t PatchSize = 3;

/// A sound card file, the ground that patches are put on.
QByteArray SoundFile(const QString& path) {
  const auto database = db::DBEngine().CreateDatabase(path, {});
  database->AppendTableDef({u"MainData"_s,
                            {{u"Index@"_s, db::FieldType::Long},
                             {u"Name"_s, db::FieldType::Text, 50},
                             {u"Notes"_s, db::FieldType::Memo},
                             {u"Due"_s, db::FieldType::Date}},
                            {{u"Index@"_s, {u"Index@"_s}, true, false}}});
  database->CreateQueryDef(u"All", u"SELECT [Index@], Name FROM MainData WHERE Name Like '*a*'");
  db::Recordset cards = database->OpenRecordset(u"MainData");
  for (int number = 1; number <= 20; ++number) {
    cards.AddNew();
    cards.Set(u"Index@", number);
    cards.Set(u"Name", u"Card %1"_s.arg(number));
    cards.Set(u"Notes", QString(number * 200, u'n'));
    cards.Update();
  }
  database->Close();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) std::abort();
  return file.readAll();
}

}  // namespace

/// The first byte says what follows: a whole file, or patches of two bytes of place and one of value for a
/// sound one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Each input is written and synced many times: only memory is fast enough for that.
  static const QTemporaryDir folder(u"/dev/shm/velmora-fuzz-XXXXXX"_s);
  static const QByteArray sound = SoundFile(folder.filePath(u"sound.ddb"_s));
  if (size == 0) return 0;
  QByteArray bytes;
  if (data[0] % 2 == 0) {
    bytes = QByteArray(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  } else {
    bytes = sound;
    for (std::size_t at = 1; at + PatchSize <= size; at += PatchSize) {
      bytes[(data[at] << 8 | data[at + 1]) % bytes.size()] = static_cast<char>(data[at + 2]);
    }
  }
  const QDir directory(folder.path());
  for (const QString& name : directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
    QFile::remove(directory.filePath(name));
  }
  const QString path = folder.filePath(u"cards.ddb"_s);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
  file.close();
  velmora::test::UseCardFile(path, folder.filePath(u"temp~.ddb"_s));
  return 0;
}
