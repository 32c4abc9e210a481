// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "forms/Screen.h"
#include "queries/ResultQuery.h"
#include "queries/SelectNameQuery.h"
#include "tests/queries/QueryScreens.h"

namespace velmora::test {
namespace {

const QString allCards = u"SELECT [Index@],[Company] FROM  MainData "_s;
const QString allCities = u"SELECT [Index@],[Company],[City] FROM  MainData "_s;

/// Counts how often a window is painted.
class PaintCount final : public QObject {
 public:
  explicit PaintCount(QWidget* window) : QObject(window) { window->installEventFilter(this); }
  int Paints = 0;

 protected:
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    Paints += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

class SelectNameQueryTest : public QueryScreensTest {
 protected:
  SelectNameQueryTest() {
    Make(ACardFile().Named(u"Company"_s).With(TextField(u"City"_s)), false);
    file->AddCard(1, u"Ann"_s, {{u"City"_s, u"Paris"_s}});
  }
  ~SelectNameQueryTest() override { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }

  void Store(const QString& name, const QString& sql = allCards) const {
    file->Database().CreateQueryDef(name, sql);
  }
  using Work = std::function<void(SelectNameQuery&)>;
  static void Open(const Work& work) {
    InDialog<SelectNameQuery>(
        [] { ui::Default<SelectNameQuery>().Show(ui::ShowMode::Modal, ui::OpenedBy::Frame); }, work);
  }
  static ui::ListBox& List(const SelectNameQuery& screen) { return Find<ui::ListBox>(screen, u"lstQuery"_s); }
  [[nodiscard]] QStringList Stored() const { return file->Database().QueryDefs(); }
  void ExpectResultOf(const QString& name) const {
    EXPECT_EQ(frame->LastQuery(), name + u'&');
    EXPECT_EQ(OpenScreen<SelectNameQuery>(), nullptr);
    const auto* result = OpenScreen<ResultQuery>();
    ASSERT_NE(result, nullptr);
    EXPECT_TRUE(result->isVisible());
    EXPECT_EQ(Find<ui::Label>(*result, u"lblNameQuery"_s).Caption(), name);
    EXPECT_EQ(Find<ui::Label>(*result, u"lblNumber"_s).Caption(), u" 1"_s);
  }
};

}  // namespace

TEST_F(SelectNameQueryTest, Load_EveryControl_HasItsCaptionAndTip) {
  Open([](const SelectNameQuery& screen) {
    EXPECT_EQ(screen.windowTitle(), u"Query List"_s);
    EXPECT_EQ(Button(screen, u"Command1"_s).toolTip(), u"Choose Name of Query and Click to View"_s);
    EXPECT_EQ(Button(screen, u"cmdDel"_s).toolTip(), u"Choose a Query and Click to Delete"_s);
    EXPECT_EQ(Button(screen, u"Command2"_s).toolTip(), u"Click to Exit"_s);
  });
}

TEST_F(SelectNameQueryTest, Activate_DefinitionWithoutAmpersandOrOfAnotherUser_IsNotListed) {
  Store(u"Plain"_s);
  Store(u"A&B"_s);
  Store(u"Mine&"_s);
  Open([](const SelectNameQuery& screen) {
    EXPECT_EQ(Lines(List(screen)), QStringList(u"Mine"_s));
    EXPECT_EQ(List(screen).ListIndex(), -1);
  });
}

TEST_F(SelectNameQueryTest, Activate_QueryThatReadsNoCards_IsListedToo) {
  Store(u"People&"_s, u"SELECT [Name] FROM  Agent "_s);
  Store(u"Mine&"_s);
  Open([this](const SelectNameQuery& screen) {
    QStringList names;
    for (const QString& stored : Stored()) names += stored.chopped(1);
    EXPECT_EQ(Lines(List(screen)), names);
    EXPECT_EQ(names.size(), 2);
  });
}

TEST_F(SelectNameQueryTest, View_Button_ShowsTheResultOfTheChosenQuery) {
  Store(u"Mine&"_s);
  Store(u"Towns&"_s, allCities);
  Open([](const SelectNameQuery& screen) {
    ClickLine(List(screen), static_cast<int>(Lines(List(screen)).indexOf(u"Towns"_s)));
    Press(screen, u"Command1"_s);
  });
  ExpectResultOf(u"Towns"_s);
}

TEST_F(SelectNameQueryTest, View_WhileAnotherResultIsOpen_ReplacesIt) {
  Store(u"Mine&"_s);
  Store(u"Towns&"_s, allCities);
  ShowQueryResult(u"Mine"_s, u"Mine&"_s, nullptr);
  QApplication::processEvents();
  const QPointer<ResultQuery> before = OpenScreen<ResultQuery>();
  const auto headings = [] {
    return Find<ui::ComboBox>(*OpenScreen<ResultQuery>(), u"lstOrder(0)"_s).ListCount();
  };
  const int ofMine = headings();
  Open([](const SelectNameQuery& screen) {
    ClickLine(List(screen), static_cast<int>(Lines(List(screen)).indexOf(u"Towns"_s)));
    Press(screen, u"Command1"_s);
  });
  ExpectResultOf(u"Towns"_s);
  EXPECT_NE(OpenScreen<ResultQuery>(), before.data());
  EXPECT_EQ(headings(), ofMine + 1);
  EXPECT_EQ(ui::Forms().size(), 2);
}

TEST_F(SelectNameQueryTest, View_DoubleClick_ShowsTheResult) {
  Store(u"Mine&"_s);
  Open([](const SelectNameQuery& screen) {
    ui::ListBox& list = List(screen);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualRect(list.model()->index(0, 0)).center());
  });
  ExpectResultOf(u"Mine"_s);
}

TEST_F(SelectNameQueryTest, View_EnterOnALine_ShowsTheResult) {
  Store(u"Mine&"_s);
  Open([](const SelectNameQuery& screen) {
    List(screen).SetFocus();
    QTest::keyClick(&List(screen), Qt::Key_Down);
    QTest::keyClick(&List(screen), Qt::Key_Return);
  });
  ExpectResultOf(u"Mine"_s);
}

TEST_F(SelectNameQueryTest, View_NoLineChosen_DoesNothing) {
  Store(u"Mine&"_s);
  Open([](const SelectNameQuery& screen) {
    Press(screen, u"Command1"_s);
    EXPECT_EQ(OpenScreen<SelectNameQuery>(), &screen);
  });
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
  EXPECT_EQ(frame->LastQuery(), QString());
}

TEST_F(SelectNameQueryTest, View_QueryOverARemovedColumn_DeletesItWithoutWarning) {
  Store(u"Towns&"_s, allCities);
  Store(u"Mine&"_s);
  file->Database().DeleteField(u"MainData", u"City");
  Open([](const SelectNameQuery& screen) {
    ClickLine(List(screen), static_cast<int>(Lines(List(screen)).indexOf(u"Towns"_s)));
    Press(screen, u"Command1"_s);
    EXPECT_EQ(OpenScreen<SelectNameQuery>(), &screen);
    EXPECT_EQ(Lines(List(screen)), QStringList(u"Mine"_s));
  });
  EXPECT_EQ(Stored(), QStringList(u"Mine&"_s));
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
  EXPECT_EQ(frame->LastQuery(), QString());
}

TEST_F(SelectNameQueryTest, Delete_ChosenLine_GoesWithoutAQuestion) {
  Store(u"Mine&"_s);
  Store(u"Towns&"_s, allCities);
  Open([](const SelectNameQuery& screen) {
    ClickLine(List(screen), static_cast<int>(Lines(List(screen)).indexOf(u"Mine"_s)));
    Press(screen, u"cmdDel"_s);
    EXPECT_EQ(Lines(List(screen)), QStringList(u"Towns"_s));
    EXPECT_EQ(List(screen).ListIndex(), -1);
    Press(screen, u"cmdDel"_s);
  });
  EXPECT_EQ(Stored(), QStringList(u"Towns&"_s));
}

TEST_F(SelectNameQueryTest, Delete_NoLineChosen_DeletesNothing) {
  Store(u"Mine&"_s);
  Store(u"&"_s, allCities);
  Open([](const SelectNameQuery& screen) { Press(screen, u"cmdDel"_s); });
  EXPECT_EQ(Stored().size(), 2);
}

TEST_F(SelectNameQueryTest, Cancel_Clicked_BringsTheCardBack) {
  Open([](const SelectNameQuery& screen) { Press(screen, u"Command2"_s); });
  EXPECT_EQ(OpenScreen<SelectNameQuery>(), nullptr);
  EXPECT_EQ(frame->Calls, QStringList(u"ShowCard"_s));
}

TEST_F(SelectNameQueryTest, Close_ByEscape_LeavesTheCardAway) {
  Open([](SelectNameQuery& screen) { QTest::keyClick(&screen, Qt::Key_Escape); });
  EXPECT_EQ(OpenScreen<SelectNameQuery>(), nullptr);
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(SelectNameQueryTest, Tab_FromTheList_ReachesEveryControlInOrder) {
  Open([](const SelectNameQuery& screen) {
    List(screen).setFocus();
    EXPECT_EQ(TabStops(), QStringList({u"lstQuery"_s, u"Command1"_s, u"cmdDel"_s, u"Command2"_s}));
  });
}

TEST_F(SelectNameQueryTest, ReturnToQuery_NoQueryRunYet_RepaintsAndDoesNothing) {
  Store(u"Mine&"_s);
  QApplication::processEvents();
  const auto* count = new PaintCount(frame.get());
  ReturnToQuery();
  EXPECT_EQ(count->Paints, 1);
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_EQ(frame->LastQuery(), QString());
}

TEST_F(SelectNameQueryTest, ReturnToQuery_QueryOfCards_ShowsItsResultAgain) {
  Store(u"Mine&"_s);
  frame->SetLastQuery(u"Mine&"_s);
  ReturnToQuery();
  ExpectResultOf(u"Mine"_s);
}

TEST_F(SelectNameQueryTest, ReturnToQuery_QueryListOpen_ClosesIt) {
  Store(u"Mine&"_s);
  frame->SetLastQuery(u"Mine&"_s);
  Open([](const SelectNameQuery&) { ReturnToQuery(); });
  ExpectResultOf(u"Mine"_s);
}

TEST_F(SelectNameQueryTest, ReturnToQuery_NoFile_DoesNothing) {
  Store(u"Mine&"_s);
  frame->SetLastQuery(u"Mine&"_s);
  Global().NoFile = True;
  ReturnToQuery();
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  Global().NoFile = False;
}

TEST_F(SelectNameQueryTest, ReturnToQuery_QueryThatFails_StaysStoredAndShowsNothing) {
  Store(u"Towns&"_s, allCities);
  frame->SetLastQuery(u"Towns&"_s);
  file->Database().DeleteField(u"MainData", u"City");
  ReturnToQuery();
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_EQ(Stored(), QStringList(u"Towns&"_s));
  EXPECT_EQ(frame->LastQuery(), u"Towns&"_s);
}

TEST_F(SelectNameQueryTest, ReturnToQuery_QueryOfAnotherList_ClosesTheListAndShowsNothing) {
  Store(u"People&"_s, u"SELECT [Name] FROM  Agent "_s);
  frame->SetLastQuery(u"People&"_s);
  Open([](const SelectNameQuery&) {
    ReturnToQuery();
    EXPECT_EQ(OpenScreen<SelectNameQuery>(), nullptr);
  });
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
  EXPECT_EQ(frame->LastQuery(), u"People&"_s);
}

}  // namespace velmora::test
