// SPDX-License-Identifier: MIT
// Queries in the real frame: the way back to the card, and the hourglass while rows are fetched.
#include "tests/shell/RealFrame.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListView>
#include <QTableView>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString results = u"ResultQuery"_s;
const QString queryList = u"SelectNameQuery"_s;

class RealFrameQueryTest : public RealFrame {
 protected:
  /// Three cards and the stored query "All".
  QString MakeCardsAndQuery() {
    return MakeFile(
        u"queries.ddb"_s, test::ACardFile().With(test::TextField(u"City"_s)), [](const test::CardFile& file) {
          for (const int card : {1, 2, 5}) file.AddCard(card, u"Card %1"_s.arg(card));
          file.Database().CreateQueryDef(u"All&"_s, u"SELECT [Index@],[Name],[City] FROM  MainData "_s);
        });
  }
  /// Runs a query from the list of queries.
  void RunFromList() const {
    InDialog(
        queryList, [this] { ClickTool(u"ltTool"_s, 16); },
        [] {
          auto& list = In<QAbstractItemView>(queryList, u"lstQuery"_s);
          ASSERT_EQ(list.model()->rowCount(), 1);
          QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                            list.visualRect(list.model()->index(0, 0)).center());
          Press(queryList, u"Command1"_s);
        });
  }
  void ExpectCard(const QString& name) const {
    EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
    EXPECT_EQ(ui::ActiveChild(), ui::FindScreen(u"ShowTable"));
    EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), name);
    EXPECT_EQ(Strip(u"ClientLab"_s), name);
  }
};

/// Notes the pointer's shape each time the rows of the results change.
class PointerWatch final : public QObject {
 public:
  PointerWatch() { qApp->installEventFilter(this); }
  /// Whether rows came, each time under the hourglass.
  [[nodiscard]] bool SawHourglassOnly() const { return m_changes > 0 && m_without == 0; }
  void Forget() { m_changes = m_without = 0; }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    // The screen has its grid by then, and no rows in it.
    if (event->type() == QEvent::Polish && target->objectName() == results) {
      QAbstractItemModel* rows = target->findChild<QTableView*>(u"MyFlex"_s)->model();
      connect(rows, &QAbstractItemModel::modelReset, this, &PointerWatch::Note, Qt::UniqueConnection);
    }
    return QObject::eventFilter(target, event);
  }

 private:
  void Note() {
    ++m_changes;
    const QCursor* pointer = QGuiApplication::overrideCursor();
    if (pointer == nullptr || pointer->shape() != Qt::WaitCursor) ++m_without;
  }
  int m_changes = 0;
  int m_without = 0;
};

TEST_F(RealFrameQueryTest, Results_RowsFetched_ShowTheHourglassMeanwhile) {
  RunOn(MakeCardsAndQuery(), 1);
  PointerWatch watch;
  RunFromList();
  ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, results}));
  EXPECT_TRUE(watch.SawHourglassOnly());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(RealFrameQueryTest, Results_Sorted_ShowTheHourglassMeanwhile) {
  RunOn(MakeCardsAndQuery(), 1);
  PointerWatch watch;
  RunFromList();
  watch.Forget();
  auto& keys = In<QComboBox>(results, u"lstOrder(0)"_s);
  keys.setFocus();
  // The first line is empty: no key.
  while (keys.currentIndex() < 1) QTest::keyClick(&keys, Qt::Key_Down);
  Press(results, u"cmdMakeOrder"_s);
  EXPECT_TRUE(watch.SawHourglassOnly());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(RealFrameQueryTest, Results_Cancelled_ShowTheCard) {
  RunOn(MakeCardsAndQuery(), 2);
  RunFromList();
  ASSERT_EQ(OpenScreens(), QStringList({u"Main"_s, results}));
  Press(results, u"cmdCancel"_s);
  ExpectCard(u"Card 2"_s);
}

TEST_F(RealFrameQueryTest, QueryList_Cancelled_ShowsTheCard) {
  RunOn(MakeCardsAndQuery(), 2);
  InDialog(
      queryList, [this] { ClickTool(u"ltTool"_s, 16); },
      [] {
        EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, queryList}));
        Press(queryList, u"Command2"_s);
      });
  ExpectCard(u"Card 2"_s);
}

TEST_F(RealFrameQueryTest, Chooser_Cancelled_ShowsTheCardAndStoresNothing) {
  RunOn(MakeCardsAndQuery(), 2);
  ClickTool(u"tool"_s, 8);
  InDialog(
      u"SelectFields"_s, [] { Press(u"QueryN"_s, u"EditData"_s); },
      [this] {
        Type(u"SelectFields"_s, u"NameQuery"_s, u"Fresh"_s);
        Press(u"SelectFields"_s, u"Cancel"_s);
      });
  ExpectCard(u"Card 2"_s);
  InDialog(
      queryList, [this] { ClickTool(u"ltTool"_s, 16); },
      [] {
        EXPECT_EQ(In<QAbstractItemView>(queryList, u"lstQuery"_s).model()->rowCount(), 1);
        Press(queryList, u"Command2"_s);
      });
}

}  // namespace
}  // namespace velmora
