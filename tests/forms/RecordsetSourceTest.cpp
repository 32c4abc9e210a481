// SPDX-License-Identifier: MIT
#include "forms/FlexGrid.h"
#include "forms/RecordsetSource.h"
#include "forms/Waiting.h"
#include "tests/support/TestDatabase.h"

#include <QApplication>
#include <QDate>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class RecordsetSourceTest : public ::testing::Test {
 protected:
  RecordsetSourceTest() {
    file.Table(u"T"_s, {{u"Index@"_s, db::FieldType::Long},
                        {u"City"_s, db::FieldType::Text, 150},
                        {u"Sum"_s, db::FieldType::Double},
                        {u"Active"_s, db::FieldType::YesNo},
                        {u"Due"_s, db::FieldType::Date}});
  }
  /// Rows numbered from 0 on in [Index@]; the number of them doubles with each statement.
  void AddNumbered(int doublings) const {
    file.Add(u"T", {{u"Index@"_s, 0}});
    for (int i = 0; i < doublings; ++i)
      file->Execute(u"INSERT INTO T ([Index@]) SELECT [Index@] + %1 FROM T"_s.arg(1 << i));
  }
  [[nodiscard]] RecordsetSource Source(QStringView statement = u"T") const {
    return RecordsetSource(file->OpenRecordset(statement));
  }
  static QStringList Line(RecordsetSource& source, int row) {
    QStringList cells;
    for (int column = 0; column < source.ColumnCount(); ++column)
      cells += source.Cell(row, column).value_or(QString());
    return cells;
  }

  TestDatabase file;
};

TEST_F(RecordsetSourceTest, Cell_EachKind_ShowsInTheProgramsForm) {
  file.Add(u"T", {{u"Index@"_s, 1234567},
                  {u"City"_s, u"Lyon"_s},
                  {u"Sum"_s, 2.5},
                  {u"Active"_s, true},
                  {u"Due"_s, QDate(1999, 3, 4)}});
  file.Add(u"T", {{u"Sum"_s, 7.0}});
  RecordsetSource source = Source();
  EXPECT_EQ(Line(source, 0), QStringList({u"1234567"_s, u"Lyon"_s, u"2.5"_s, u"-1"_s, u"3/4/1999"_s}));
  EXPECT_EQ(Line(source, 1), QStringList({QString(), QString(), u"7"_s, u"0"_s, QString()}));
}

TEST_F(RecordsetSourceTest, Heading_IsTheColumnsName) {
  RecordsetSource source = Source(u"SELECT [City],[Index@] FROM T");
  EXPECT_EQ(source.ColumnCount(), 2);
  EXPECT_EQ(source.Heading(0), u"City"_s);
  EXPECT_EQ(source.Heading(1), u"Index@"_s);
  EXPECT_EQ(source.Heading(2), QString());
}

TEST_F(RecordsetSourceTest, RowCount_EmptyResult_IsZeroAndCellsAreEmpty) {
  RecordsetSource source = Source();
  EXPECT_EQ(source.RowCount(), 0);
  EXPECT_EQ(source.Cell(0, 0), QString());
}

TEST_F(RecordsetSourceTest, Cell_ManyBlocksInAnyOrder_IsTheRows) {
  AddNumbered(10);
  RecordsetSource source = Source(u"SELECT * FROM T ORDER BY [Index@] DESC");
  ASSERT_EQ(source.RowCount(), 1024);
  for (const int row : {1023, 0, 500, 63, 64, 1022, 1, 300, 700, 0, 127, 128}) {
    EXPECT_EQ(source.Cell(row, 0), QString::number(1023 - row)) << row;
  }
  EXPECT_EQ(source.Cell(1024, 0), QString());
  EXPECT_EQ(source.Cell(-1, 0), QString());
  EXPECT_EQ(source.Cell(0, 5), QString());
}

TEST_F(RecordsetSourceTest, Cell_RowDeletedMeanwhile_IsEmptyAndTheOthersStay) {
  AddNumbered(3);
  RecordsetSource source = Source();
  file->Execute(u"Delete * from T WHERE [Index@] = 4");
  EXPECT_EQ(source.RowCount(), 8);
  EXPECT_EQ(source.Cell(4, 0), QString());
  EXPECT_EQ(source.Cell(3, 0), u"3"_s);
  EXPECT_EQ(source.Cell(5, 0), u"5"_s);
}

TEST_F(RecordsetSourceTest, Cell_WhileWindowsRepaint_KeptRowsShowAndOthersWait) {
  AddNumbered(8);
  RecordsetSource source = Source();
  EXPECT_EQ(source.Cell(3, 0), u"3"_s);
  std::optional<QString> kept;
  std::optional<QString> unread = u"unasked"_s;
  QTimer::singleShot(0, qApp, [&] {
    if (!ui::IsRepainting()) return;
    kept = source.Cell(5, 0);
    unread = source.Cell(200, 0);
  });
  ui::LetRepaint();
  EXPECT_EQ(kept, u"5"_s);
  EXPECT_EQ(unread, std::nullopt);
  EXPECT_EQ(source.Cell(200, 0), u"200"_s);
}

TEST_F(RecordsetSourceTest, Grid_PaintedDuringLongWork_ShowsItsRowsAfterwards) {
  AddNumbered(8);
  ui::FlexGrid grid(nullptr);
  grid.SetDataSource(std::make_unique<RecordsetSource>(file->OpenRecordset(u"SELECT [Index@] FROM T")));
  grid.resize(300, 200);
  QString seen = u"nothing asked"_s;
  QTimer::singleShot(0, &grid, [&] { seen = grid.TextMatrix(201, 0); });
  ui::LetRepaint();
  EXPECT_EQ(seen, QString());
  // The cells are told to be painted anew by themselves.
  const QSignalSpy repainted(grid.model(), &QAbstractItemModel::dataChanged);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !repainted.isEmpty(); }));
  EXPECT_EQ(grid.TextMatrix(201, 0), u"200"_s);
}

TEST_F(RecordsetSourceTest, Cell_FileClosed_IsEmpty) {
  AddNumbered(8);
  RecordsetSource source = Source();
  EXPECT_EQ(source.Cell(0, 0), u"0"_s);
  file.Close();
  EXPECT_EQ(source.Cell(150, 0), QString());
  EXPECT_EQ(source.RowCount(), 256);
}

TEST_F(RecordsetSourceTest, Grid_BoundToIt_ShowsRowsBelowTheColumnsNames) {
  AddNumbered(2);
  ui::FlexGrid grid(nullptr);
  grid.SetDataSource(
      std::make_unique<RecordsetSource>(file->OpenRecordset(u"SELECT [Index@],[Active] FROM T")));
  grid.SetConverter(1, [](const QString& text) { return text == u"0"_s ? u"No"_s : u"Yes"_s; });
  EXPECT_EQ(grid.Rows(), 5);
  EXPECT_EQ(grid.TextMatrix(0, 0), u"Index@"_s);
  EXPECT_EQ(grid.TextMatrix(3, 0), u"2"_s);
  EXPECT_EQ(grid.TextMatrix(3, 1), u"No"_s);
}

}  // namespace
