// SPDX-License-Identifier: MIT
#include "tests/engine/DamagedCardFile.h"

#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::CardFileOnDisk;
using test::Connect;
using test::DamagedFile;
using test::PagesOf;
using test::PageUse;
using test::Repair;
using test::RootOf;
using test::Seed;

namespace {

TEST(RepairFile, AnyOnePageDestroyed_LosesTheRowsOfThatPageAlone) {
  DamagedFile file;
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  ASSERT_GT(pages.size(), 50U);
  for (const auto& [number, use] : pages) {
    if (use.OfSchema) continue;
    SCOPED_TRACE(qPrintable(u"page %1, %2"_s.arg(number).arg(use.Kind)));
    const bool isLeaf = use.OfTable && use.Kind == u"leaf"_s;
    const int mostLost = isLeaf ? use.Cells : use.Kind == u"overflow"_s ? 1 : 0;
    for (const char filling : {'\0', '\x0d'}) {
      EXPECT_LE(file.MissingAfter(file.WithoutPage(number, filling)).size(), mostLost);
    }
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, IndexPageDestroyed_RestoresTheIndexAndKeepsNoDamagedFile) {
  DamagedFile file;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (use.OfTable || use.Kind != u"leaf"_s || number < 3) continue;
    EXPECT_EQ(file.MissingAfter(file.WithoutPage(number)), QStringList());
    EXPECT_EQ(file->Names(), QStringList{u"cards.ddb"_s});
    return;
  }
  FAIL() << "no page of an index";
}

TEST(RepairFile, PageOfTheListOfTablesDestroyed_Fails3343AndLeavesTheFileAsItIs) {
  const DamagedFile file(20, 512);
  int tried = 0;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (!use.OfSchema || use.Kind == u"overflow"_s) continue;
    ++tried;
    const QByteArray damaged = file.WithoutPage(number);
    file->Write(damaged);
    EXPECT_EQ(Repair(*file), 3343);
    EXPECT_EQ(file->Bytes(), damaged);
    EXPECT_EQ(file->Names(), QStringList{u"cards.ddb"_s});
  }
  EXPECT_GT(tried, 2);
}

TEST(RepairFile, CutShortAnywhere_KeepsAllRowsOfThePagesThatAreLeft) {
  DamagedFile file;
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  const int last = pages.rbegin()->first;
  int lastOfSchema = 1;
  for (const auto& [number, use] : pages) {
    if (use.OfSchema) lastOfSchema = number;
  }
  for (int left = 3; left < last; left += 7) {
    SCOPED_TRACE(left);
    qsizetype mostLost = 0;
    if (left < lastOfSchema) continue;
    for (const auto& [number, use] : pages) {
      if (number > left && use.OfTable) mostLost += use.Kind == u"leaf"_s ? use.Cells : 1;
    }
    EXPECT_LE(file.MissingAfter(file.Whole().left(qsizetype{left} * file.PageSize() + 17)).size(), mostLost);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, AnyOneByteChanged_LosesOneRowAtMost) {
  DamagedFile file(60, 512);
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  std::mt19937 random(Seed(20240517));
  std::uniform_int_distribution<qsizetype> place(file.PageSize(), file.Whole().size() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  for (int round = 0; round < 400; ++round) {
    QByteArray bytes = file.Whole();
    const qsizetype at = place(random);
    if (pages.at(static_cast<int>(at / file.PageSize()) + 1).OfSchema) continue;
    bytes[at] = static_cast<char>(value(random));
    SCOPED_TRACE(qPrintable(u"round %1, byte %2 = %3"_s.arg(round).arg(at).arg(int{bytes[at]})));
    EXPECT_LE(file.MissingAfter(bytes).size(), 1);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, AnyBytesOfTheFirstPageChanged_LosesNothingOrLeavesTheFileAsItIs) {
  DamagedFile file(60, 4096);
  std::mt19937 random(Seed(7));
  std::uniform_int_distribution<qsizetype> place(0, file.PageSize() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  int repaired = 0;
  for (int round = 0; round < 300; ++round) {
    QByteArray bytes = file.Whole();
    const qsizetype at = round < 120 ? round : place(random);
    bytes[at] = static_cast<char>(bytes[at] ^ (value(random) | 1));
    SCOPED_TRACE(qPrintable(u"round %1, byte %2 = %3"_s.arg(round).arg(at).arg(int{bytes[at]})));
    file->Write(bytes);
    const int error = Repair(*file);
    if (error == 0) {
      ++repaired;
      const QString verdict = CardFileOnDisk::Verdict(file->Path());
      EXPECT_EQ(verdict, u"ok"_s);
      // The name of a table may be what was changed.
      EXPECT_EQ(file->Rows().size(), file.RowsBefore().size());
    } else {
      EXPECT_EQ(error, 3343);
      EXPECT_EQ(file->Bytes(), bytes);
    }
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_GT(repaired, 100);
}

TEST(RepairFile, ManyBytesChanged_NeverLosesMoreThanWasHit) {
  DamagedFile file(300, 1024);
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  std::mt19937 random(Seed(99));
  std::uniform_int_distribution<qsizetype> place(file.PageSize(), file.Whole().size() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    QByteArray bytes = file.Whole();
    qsizetype mostLost = 0;
    for (int hit = 0; hit <= round; ++hit) {
      const qsizetype at = place(random);
      bytes[at] = static_cast<char>(value(random));
      const auto page = pages.find(static_cast<int>(at / file.PageSize()) + 1);
      if (page == pages.end() || !page->second.OfTable) continue;
      mostLost += page->second.Kind == u"leaf"_s ? page->second.Cells : 1;
    }
    EXPECT_LE(file.MissingAfter(bytes).size(), mostLost);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, LargeFileWithItsRootDestroyed_KeepsAllRows) {
  DamagedFile file(3000, 1024);
  EXPECT_EQ(file.MissingAfter(file.WithoutPage(RootOf(file->Path(), u"MainData"_s))), QStringList());
}

TEST(RepairFile, DeletedRows_StayDeleted) {
  DamagedFile file(400);
  db::Run(Connect(file->Path()).get(),
          u"PRAGMA secure_delete=OFF; DELETE FROM MainData WHERE \"Index@\" > 100");
  const QStringList rows = file->Rows();
  const QByteArray bytes = file->Bytes();
  const int root = RootOf(file->Path(), u"MainData"_s);
  file->Write(QByteArray(bytes).replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0')));
  ASSERT_EQ(Repair(*file), 0);
  EXPECT_EQ(file->Rows(), rows);
}

TEST(RepairFile, AnyPageThatLiesAboutItsKind_LosesNothing) {
  DamagedFile file;
  int tried = 0;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (use.OfSchema || !use.OfTable || use.Kind == u"overflow"_s) continue;
    ++tried;
    const qsizetype at = qsizetype{number - 1} * file.PageSize();
    for (const char kind : {'\0', '\x05', '\x0d', '\x0a'}) {
      SCOPED_TRACE(qPrintable(u"page %1, kind %2"_s.arg(number).arg(int{kind})));
      EXPECT_EQ(file.MissingAfter(QByteArray(file.Whole()).replace(at, 1, QByteArray(1, kind))),
                QStringList());
    }
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_GT(tried, 20);
}

TEST(RepairFile, DefinitionThatHasLostAColumn_Fails3343AndLeavesTheFileAsItIs) {
  const DamagedFile file(60, 4096);
  // What SQLite itself finds amiss is an index; the definition it would take as it is.
  QByteArray damaged;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (!use.OfTable) damaged = file.WithoutPage(number);
  }
  const qsizetype comma = damaged.indexOf("CURRENCY,");
  ASSERT_GT(comma, 0);
  damaged.replace(comma, 9, "CURRENCY ");
  file->Write(damaged);
  EXPECT_EQ(Repair(*file), 3343);
  EXPECT_EQ(file->Bytes(), damaged);
}

}  // namespace
}  // namespace velmora::db
