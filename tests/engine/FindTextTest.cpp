// SPDX-License-Identifier: MIT
// Finding a text among the rows of a recordset, beside plain walking.
#include "engine/text/LikePattern.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::TestDatabase;

namespace {

/// What stands in a cell of a grid.
QString CellOf(Recordset& rows, std::int64_t place, int column) {
  rows.MoveTo(place);
  try {
    return rows.At(column).TextOr({});
  } catch (const Error&) {
    return {};
  }
}

/// The nearest row by looking at one cell after the other.
std::optional<std::int64_t> Walk(Recordset& rows, int column, const QString& text, std::int64_t from,
                                 FindWay way) {
  const std::int64_t count = rows.RecordCount();
  for (std::int64_t place = from; place >= 0 && place < count; place += way == FindWay::Down ? 1 : -1) {
    if (CellOf(rows, place, column).contains(text, Qt::CaseInsensitive)) return place;
  }
  return std::nullopt;
}

/// Words that share pieces, with accents, signs of patterns and none at all; every hit can be far away.
class FindTextTest : public testing::Test {
 protected:
  static constexpr int rows = 300;

  FindTextTest() {
    m_file.Table(u"T"_s,
                 {{u"N"_s, FieldType::Long},
                  {u"Name"_s, FieldType::Text, 40},
                  {u"Amount"_s, FieldType::Double},
                  {u"Due"_s, FieldType::Date}},
                 {{u"I"_s, {u"N"_s}, true, false}});
    const std::array<QString, 8> pieces{u"Ann"_s, u"JO"_s,  u"é"_s,   u"Łódź"_s,
                                        u"[x]"_s, u"50%"_s, u" * "_s, u"#?"_s};
    Recordset table = m_file->OpenRecordset(u"T");
    for (int number = 1; number <= rows; ++number) {
      table.AddNew();
      table.Set(u"N", number * 3);
      if (Random(10) > 0) {
        QString name;
        for (int piece = Random(3); piece >= 0; --piece) name += pieces[static_cast<std::size_t>(Random(8))];
        table.Set(u"Name", name);
      }
      table.Set(u"Amount", number / 4.0);
      table.Set(u"Due", QDate(2024, 1, 1).addDays(number));
      table.Update();
    }
  }
  int Random(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
  QString RandomText() {
    const std::array<QString, 12> texts{u"ann"_s, u"É"_s,  u"łÓDŹ"_s, u"["_s, u"]"_s,    u"%"_s,
                                        u"*"_s,   u"#?"_s, u"12"_s,   u"0"_s, u"nnjo"_s, u"nowhere"_s};
    return texts[static_cast<std::size_t>(Random(12))];
  }
  TestDatabase m_file;
  std::mt19937 m_random{7};
};

TEST_F(FindTextTest, FindText_AnyTextOrderPlaceAndWay_FindsWhatWalkingFinds) {
  for (const QStringView source : {u"Select N, Name from T", u"Select N, Name from T ORDER BY Name",
                                   u"Select N, Name from T ORDER BY N DESC"}) {
    Recordset found = m_file->OpenRecordset(source);
    Recordset walked = m_file->OpenRecordset(source);
    int hits = 0;
    for (int turn = 0; turn < 100; ++turn) {
      const QString text = RandomText();
      const int column = Random(2);
      const int from = Random(rows + 2) - 1;
      const FindWay way = Random(2) == 0 ? FindWay::Down : FindWay::Up;
      const auto hit = found.FindText(column, text, from, way);
      EXPECT_EQ(hit, Walk(walked, column, text, from, way))
          << source.toString().toStdString() << " " << text.toStdString() << " " << column << " " << from;
      hits += hit ? 1 : 0;
    }
    EXPECT_GT(hits, 30);
    EXPECT_LT(hits, 100);
  }
}

TEST_F(FindTextTest, FindText_NumbersAndDates_AreFoundByWhatTheyShow) {
  Recordset found = m_file->OpenRecordset(u"T");
  Recordset walked = m_file->OpenRecordset(u"T");
  for (const QString& text : {u"5.75"_s, u"74.5"_s, u"10/"_s, u"11"_s}) {
    for (const int column : {2, 3}) {
      EXPECT_EQ(found.FindText(column, text, 0, FindWay::Down), Walk(walked, column, text, 0, FindWay::Down));
    }
  }
}

TEST_F(FindTextTest, FindText_RowFarAway_LeavesTheCurrentRow) {
  Recordset found = m_file->OpenRecordset(u"T");
  found.MoveTo(4);
  EXPECT_EQ(found.FindText(0, u"900"_s, 0, FindWay::Down), rows - 1);
  EXPECT_EQ(found[u"N"].Long(), 15);
}

TEST_F(FindTextTest, FindText_RowsDeletedAndChangedSince_HoldWhatTheFileHolds) {
  Recordset found = m_file->OpenRecordset(u"Select N, Name from T");
  EXPECT_EQ(found.RecordCount(), rows);
  m_file->Execute(u"Update T set Name = 'Unique' Where N = 600 Or N = 750 Or N = 6");
  m_file->Execute(u"Delete * from T Where N = 600 Or N = 6");
  EXPECT_EQ(found.FindText(1, u"unique"_s, 0, FindWay::Down), 249);
  EXPECT_EQ(found.FindText(1, u"unique"_s, 248, FindWay::Up), std::nullopt);
}

TEST_F(FindTextTest, FindText_RowsOfNoOneTable_AreWalked) {
  Recordset found = m_file->OpenRecordset(u"Select Distinct N, Name from T ORDER BY N");
  EXPECT_EQ(found.FindText(0, u"900"_s, 0, FindWay::Down), rows - 1);
}

TEST_F(FindTextTest, FindText_ComputedColumn_IsWalked) {
  Recordset found = m_file->OpenRecordset(u"Select N, N & '!' AS Shout from T");
  EXPECT_EQ(found.FindText(1, u"900!"_s, 0, FindWay::Down), rows - 1);
}

TEST_F(FindTextTest, FindText_NoSuchColumn_Fails3265) {
  const Recordset found = m_file->OpenRecordset(u"T");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(found.FindText(4, u"a"_s, 0, FindWay::Down)); }), 3265);
}

TEST(LiteralLike, SignsOfPatterns_StandForThemselves) {
  for (const QString& text : {u"*"_s, u"?"_s, u"#"_s, u"["_s, u"]"_s, u"[a-c]"_s, u"[!x]"_s, u"a*b"_s}) {
    EXPECT_TRUE(MatchesLike(LiteralLike(text), text)) << text.toStdString();
    EXPECT_FALSE(MatchesLike(LiteralLike(text), u"b"_s)) << text.toStdString();
  }
}

}  // namespace
}  // namespace velmora::db
