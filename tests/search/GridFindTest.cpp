// SPDX-License-Identifier: MIT
// Finding in a grid beside walking its cells as they show.
#include "forms/RecordsetSource.h"
#include "search/GridFind.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/TestWindow.h"

#include <random>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

constexpr int rows = 250;

class GridFindTest : public WindowTest {
 protected:
  GridFindTest() {
    m_file.Table(u"T"_s, {{u"N"_s, db::FieldType::Long}, {u"Name"_s, db::FieldType::Text, 40}});
    db::Recordset table = m_file->OpenRecordset(u"T");
    for (int number = 1; number <= rows; ++number) {
      table.AddNew();
      table.Set(u"N", static_cast<int>(m_random() % 5000));
      if (number % 9 != 0) table.Set(u"Name", Name());
      table.Update();
    }
    Open(u"Select N, Name from T ORDER BY Name");
  }
  void Open(QStringView source) {
    m_grid->SetDataSource(std::make_unique<RecordsetSource>(m_file->OpenRecordset(source)));
  }
  QString Name() {
    QString name;
    for (int letter = 0; letter < 5; ++letter) name += u"abcÄé[*"[m_random() % 7];
    return name;
  }
  [[nodiscard]] bool Holds(int row, int column, const QString& text) const {
    return m_grid->TextMatrix(row, column).contains(text, Qt::CaseInsensitive);
  }
  [[nodiscard]] std::optional<int> WalkDown(int column, const QString& text, int start) const {
    for (int row = start; row <= m_grid->Rows() - 1; ++row) {
      if (Holds(row, column, text)) return row;
    }
    return std::nullopt;
  }
  [[nodiscard]] std::optional<int> WalkUp(int column, const QString& text, int start) const {
    for (int row = start - 1; row >= 1; --row) {
      if (Holds(row, column, text)) return row;
    }
    return std::nullopt;
  }

  test::TestDatabase m_file;
  std::mt19937 m_random{3};
  ui::FlexGrid* m_grid = new ui::FlexGrid(&m_window);
};

TEST_F(GridFindTest, NextAndPrev_AnyTextAndStart_FindWhatWalkingTheCellsFinds) {
  int hits = 0;
  for (int turn = 0; turn < 200; ++turn) {
    const int column = static_cast<int>(m_random() % 2);
    const QString text = column == 0 ? QString::number(m_random() % 300)
                                     : Name().left(static_cast<qsizetype>(1 + m_random() % 3)).toLower();
    const int start = static_cast<int>(1 + m_random() % (rows + 1));
    EXPECT_EQ(GridFindNext(column, text, start, *m_grid), WalkDown(column, text, start));
    EXPECT_EQ(GridFindPrev(column, text, start, *m_grid), WalkUp(column, text, start));
    hits += WalkDown(column, text, start) ? 1 : 0;
  }
  EXPECT_GT(hits, 50);
  EXPECT_LT(hits, 190);
}

TEST_F(GridFindTest, Next_Hit_IsMarkedAndOnTop) {
  Show();
  m_grid->resize(400, 200);
  const auto row = WalkDown(1, u"*"_s, 100);
  ASSERT_TRUE(row);
  EXPECT_EQ(GridFindNext(1, u"*"_s, 100, *m_grid), row);
  EXPECT_EQ(m_grid->Row(), row);
  EXPECT_EQ(m_grid->RowSel(), row);
  EXPECT_EQ(m_grid->Col(), 1);
  EXPECT_EQ(m_grid->ColSel(), 1);
  EXPECT_EQ(m_grid->TopRow(), row);
}

TEST_F(GridFindTest, NextAndPrev_NoHitOrNoRows_LeaveTheGridAlone) {
  m_grid->SetRow(5);
  EXPECT_EQ(GridFindNext(1, u"nowhere"_s, 1, *m_grid), std::nullopt);
  EXPECT_EQ(GridFindPrev(1, u"nowhere"_s, rows + 1, *m_grid), std::nullopt);
  EXPECT_EQ(GridFindNext(1, u"a"_s, rows + 1, *m_grid), std::nullopt);
  EXPECT_EQ(GridFindPrev(1, u"a"_s, 1, *m_grid), std::nullopt);
  EXPECT_EQ(m_grid->Row(), 5);
  m_grid->SetDataSource(nullptr);
  EXPECT_EQ(GridFindNext(1, u"a"_s, 1, *m_grid), std::nullopt);
}

}  // namespace
}  // namespace velmora
