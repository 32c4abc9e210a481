// SPDX-License-Identifier: MIT
#include "forms/FlexModel.h"
#include "tests/forms/PlaceSource.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <memory>

namespace velmora::ui {
namespace {

TEST(FlexModelTest, ModelTester_ThroughAllChanges_IsContent) {
  FlexModel model(nullptr);
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.SetColumnCount(3);
  model.SetRowCount(4);
  model.SetText(1, 2, u"x"_s);
  model.SetRowCount(2);
  EXPECT_EQ(model.Text(1, 2), u"x"_s);
  model.SetColumnCount(1);
  model.SetSource(std::make_unique<PlaceSource>(50, QStringList{u"A"_s, u"B"_s}));
  model.SetConverter(1, [](const QString& text) { return text.toUpper(); });
  model.SetAlignment(1, Qt::AlignRight);
  model.SetHeading(0, u"Number"_s);
  EXPECT_EQ(model.rowCount(), 50);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Number"_s);
  model.SetSource(nullptr);
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.columnCount(), 2);
}

}  // namespace
}  // namespace velmora::ui
