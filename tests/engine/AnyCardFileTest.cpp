// SPDX-License-Identifier: MIT
#include "tests/engine/AnyCardFile.h"
#include "tests/engine/CardFileOnDisk.h"

#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::CardFileOnDisk;
using test::Seed;
using test::UseCardFile;

namespace {

constexpr int Rounds = 300;

/// Bytes changed, cut, moved and filled, so that each layer of the file's structure gets its share.
class Spoiler {
 public:
  explicit Spoiler(unsigned seed) : m_random(seed) {}

  QByteArray Spoil(QByteArray bytes) {
    for (int change = Upto(8); change >= 0; --change) {
      if (bytes.isEmpty()) break;
      const qsizetype at = Upto(static_cast<int>(bytes.size()) - 1);
      switch (Upto(5)) {
        case 0:
          bytes.truncate(at);
          break;
        case 1:
          bytes.replace(at, 1 + Upto(64), QByteArray(1 + Upto(64), static_cast<char>(Upto(255))));
          break;
        case 2:
          bytes.replace(at, 4, bytes.mid(Upto(static_cast<int>(bytes.size()) - 1), 4));
          break;
        case 3:
          bytes[Upto(std::min(99, static_cast<int>(bytes.size()) - 1))] = static_cast<char>(Upto(255));
          break;
        default:
          bytes[at] = static_cast<char>(Upto(255));
          break;
      }
    }
    return bytes;
  }

 private:
  int Upto(int greatest) { return std::uniform_int_distribution<int>(0, greatest)(m_random); }
  std::mt19937 m_random;
};

TEST(AnyCardFile, SpoiledInManyWays_IsOpenedOrRefusedByTheEnginesOwnErrors) {
  const CardFileOnDisk file(40, 1024);
  const QByteArray whole = file.Bytes();
  const QString copy = file.PathOf(u"temp~.ddb"_s);
  Spoiler spoiler(Seed(3));
  int opened = 0;
  for (int round = 0; round < Rounds; ++round) {
    for (const QString& name : file.Names()) QFile::remove(file.PathOf(name));
    file.Write(spoiler.Spoil(whole));
    if (UseCardFile(file.Path(), copy)) ++opened;
  }
  EXPECT_GT(opened, Rounds / 10);
  EXPECT_LT(opened, Rounds);
}

}  // namespace
}  // namespace velmora::db
