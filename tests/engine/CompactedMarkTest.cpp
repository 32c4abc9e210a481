// SPDX-License-Identifier: MIT
#include "engine/CompactedMark.h"
#include "engine/DBEngine.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <QTemporaryDir>

namespace velmora::db {
namespace {

using namespace Qt::StringLiterals;

class CompactedMark : public testing::Test {
 protected:
  CompactedMark() {
    const auto file = DBEngine().CreateDatabase(Path(), QString());
    file->AppendTableDef(
        {.Name = u"Cards"_s, .Fields = {{.Name = u"City"_s, .Type = FieldType::Text}}, .Indexes = {}});
    file->Close();
  }
  [[nodiscard]] QString Path() const { return m_dir.filePath(u"cards.ddb"_s); }
  [[nodiscard]] QString Copy() const { return m_dir.filePath(u"temp~.ddb"_s); }
  void Compact() const {
    DBEngine().CompactDatabase(Path(), Copy());
    DBEngine().ReplaceDatabase(Copy(), Path());
  }

 private:
  QTemporaryDir m_dir;
};

TEST_F(CompactedMark, NeverCompacted_IsNot) { EXPECT_FALSE(IsCompacted(Path())); }

TEST_F(CompactedMark, CompactedAndOnlyReadSince_IsCompacted) {
  for (int round = 0; round < 3; ++round) {
    Compact();
    EXPECT_TRUE(IsCompacted(Path())) << round;
    const auto file = DBEngine().OpenDatabase(Path());
    EXPECT_TRUE(file->OpenRecordset(u"Cards").AtEnd());
    file->Close();
    EXPECT_TRUE(IsCompacted(Path())) << round;
  }
}

TEST_F(CompactedMark, ChangedSince_IsNot) {
  Compact();
  {
    const auto file = DBEngine().OpenDatabase(Path());
    file->Execute(u"INSERT INTO Cards (City) VALUES ('Lyon')");
  }
  EXPECT_FALSE(IsCompacted(Path()));
  Compact();
  EXPECT_TRUE(IsCompacted(Path()));
}

TEST_F(CompactedMark, ChangedByAnotherTool_IsNot) {
  Compact();
  db::Run(test::Connect(Path()).get(), u"INSERT INTO Cards VALUES ('Lyon')");
  EXPECT_FALSE(IsCompacted(Path()));
}

TEST_F(CompactedMark, FileOfAnotherTool_GetsNoMarkAndNoTableOfOurs) {
  const test::CardFileOnDisk stranger;
  DBEngine().CompactDatabase(stranger.Path(), Copy());
  EXPECT_FALSE(IsCompacted(Copy()));
  EXPECT_EQ(
      QueryNumber(test::Connect(Copy()).get(), u"SELECT count(*) FROM sqlite_schema WHERE name LIKE '.%'"),
      0);
}

TEST_F(CompactedMark, NoFile_IsNot) { EXPECT_FALSE(IsCompacted(Path() + u"x"_s)); }

}  // namespace
}  // namespace velmora::db
