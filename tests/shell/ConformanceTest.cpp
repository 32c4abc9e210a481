// SPDX-License-Identifier: MIT
// What every screen of the program owes its users, whatever it is for.
#include "cardfile/CreatTable.h"
#include "cardfile/EnterItem.h"
#include "cardfile/EnterShow.h"
#include "cardfile/MakeCardFile.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "cards/frmReminder.h"
#include "forms/Default.h"
#include "forms/Screen.h"
#include "frame/Session.h"
#include "queries/EnterQuery.h"
#include "queries/QueryN.h"
#include "queries/ResultQuery.h"
#include "queries/SelectFields.h"
#include "queries/SelectNameQuery.h"
#include "queries/SelectQ.h"
#include "queries/frmBoolSel.h"
#include "queries/frmSelNum.h"
#include "search/Search.h"
#include "search/fQSearch.h"
#include "shell/FHelpSamples.h"
#include "shell/frmAbout.h"
#include "shell/frmBrowser.h"
#include "shell/frmHelpCreate.h"
#include "shell/frmOptions.h"
#include "shell/frmTut.h"
#include "tests/shell/MainFixture.h"

#include <QAccessible>
#include <QAction>
#include <QDate>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QShortcut>
#include <QTableView>
#include <QtTest>

#include <map>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

enum Element { City, Turnover, Active, Due };

/// A screen by its name, and what brings it up; that of a dialog returns when it is gone.
struct ScreenCase {
  const char* Name;
  void (*Show)(Main& frame);
};

void PrintTo(const ScreenCase& screen, std::ostream* out) { *out << screen.Name; }

ui::TextBox& SeekBox(const Main& frame) { return *frame.findChild<ui::TextBox*>(u"txtSeek"_s); }

ValueListField CityField(const Main& frame) { return {.Name = u"City"_s, .Box = &SeekBox(frame)}; }

ui::ListBox& Conditions(Element field) {
  ui::Default<QueryN>().Show();
  return ui::Default<QueryN>().lstElement[field];
}

constexpr auto screens = std::to_array<ScreenCase>({
    // An empty frame has no control with the focus until the user goes to one.
    {"Main", [](Main& frame) { QTest::keyClick(&frame, Qt::Key_F6); }},
    {"CreatTable",
     [](Main&) {
       auto& wizard = ui::Default<CreatTable>();
       wizard.SetNewFileName(u"/nowhere/new.ddb"_s);
       wizard.SetNewFileTitle(u"new.ddb"_s);
       wizard.Show();
     }},
    {"fEditLab", [](Main& frame) { frame.WhatWasCmdEditFieldsClick(); }},
    {"frmTut", [](Main&) { ui::Default<frmTut>().Show(ui::ShowMode::Modal); }},
    {"FHelpSamples", [](Main&) { ui::Default<FHelpSamples>().Show(ui::ShowMode::Modal); }},
    {"frmHelpCreate", [](Main&) { ui::Default<frmHelpCreate>().Show(ui::ShowMode::Modal); }},
    {"ShowTable", [](Main& frame) { frame.ShowCard(); }},
    {"EditTable", [](Main& frame) { frame.NewCard(); }},
    {"frmReminder",
     [](Main& frame) {
       frame.NewCard();
       auto& reminder = ui::Default<frmReminder>();
       reminder.DateCtl = &ui::Default<EditTable>().NameDate[Due];
       reminder.Show(ui::ShowMode::Modal);
     }},
    {"EnterItem", [](Main& frame) { (new EnterItem(CityField(frame)))->Show(ui::ShowMode::Modal); }},
    {"EnterShow", [](Main& frame) { (new EnterShow(CityField(frame)))->Show(ui::ShowMode::Modal); }},
    {"QueryN", [](Main&) { ui::Default<QueryN>().Show(); }},
    {"SelectQ", [](Main&) { (new SelectQ(Conditions(City), u"City"_s))->Show(ui::ShowMode::Modal); }},
    {"EnterQuery",
     [](Main& frame) { (new EnterQuery(u"City"_s, SeekBox(frame)))->Show(ui::ShowMode::Modal); }},
    {"frmSelNum", [](Main&) { (new frmSelNum(Conditions(Turnover)))->Show(ui::ShowMode::Modal); }},
    {"frmBoolSel",
     [](Main&) { (new frmBoolSel(Conditions(Active), u"Active"_s))->Show(ui::ShowMode::Modal); }},
    {"SelectFields", [](Main&) { ui::Default<SelectFields>().Show(ui::ShowMode::Modal); }},
    {"ResultQuery",
     [](Main&) {
       auto& result = ui::Default<ResultQuery>();
       result.SetQueryKey(u"All&"_s);
       result.Show();
     }},
    {"fQSearch", [](Main& frame) { frame.ShowQuickSearch(); }},
    {"Search", [](Main&) { ui::Default<Search>().Show(); }},
    {"SelectNameQuery",
     [](Main&) { ui::Default<SelectNameQuery>().Show(ui::ShowMode::Modal, ui::OpenedBy::Frame); }},
    {"frmOptions", [](Main&) { ui::Default<frmOptions>().Show(ui::ShowMode::Modal); }},
    {"frmBrowser", [](Main&) { ui::Default<frmBrowser>().Show(); }},
    {"frmAbout", [](Main&) { ui::Default<frmAbout>().Show(); }},
});

std::string NameOf(const QWidget& widget) {
  std::string name = widget.metaObject()->className();
  return name + " " + widget.objectName().toStdString();
}

/// Whether the widget is a control that holds the focus itself, and not a part that another one speaks for.
bool HoldsFocus(const QWidget& widget, Qt::FocusPolicy policy) {
  return (widget.focusPolicy() & policy) != 0 && widget.focusProxy() == nullptr && !widget.isWindow();
}

/// Of the choices that exclude each other, the Tab key stops at the one that is chosen.
bool IsChoiceLeftOut(const QWidget& widget) {
  const auto* button = qobject_cast<const QRadioButton*>(&widget);
  return button != nullptr && button->autoExclusive() && !button->isChecked();
}

/// One card file with fields of every kind, its frame, and the screen of the case in it.
class ScreenTest : public MainFixture, public testing::WithParamInterface<ScreenCase> {
 protected:
  ScreenTest() {
    Main& frame = StartOn(MakeWideFile());
    frame.UnloadOtherForms();
    frame.activateWindow();
    QApplication::setActiveWindow(&frame);
    Global().File().CreateQueryDef(u"All&", u"SELECT [Index@],[Company],[City],[Active] FROM  MainData ");
  }

  [[nodiscard]] static QString Name() { return QString::fromLatin1(GetParam().Name); }
  [[nodiscard]] QWidget* Screen() const {
    if (Name() == u"Main"_s) return m_main.get();
    return dynamic_cast<ui::Form*>(ui::FindScreen(Name()));
  }
  /// Brings the screen up, works on it, and closes it if that is still to be done.
  void Visit(const std::function<void(QWidget&)>& work) {
    bool came = false;
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
      const QPointer<QWidget> screen = Screen();
      if (screen.isNull() || !screen->isAncestorOf(QApplication::focusWidget())) return;
      waiting.stop();
      came = true;
      work(*screen);
      if (auto* form = qobject_cast<ui::Form*>(screen.data()); form != nullptr && !form->IsClosing())
        form->Unload();
    });
    waiting.start();
    GetParam().Show(*m_main);
    ASSERT_TRUE(QTest::qWaitFor([&came] { return came; })) << "the screen did not come, or without a focus";
  }
  /// Closes the screen in the given way; it must be gone from the list and from the memory.
  void ExpectCloses(const std::function<void(QWidget&)>& close) {
    QPointer<QWidget> screen;
    Visit([&](QWidget& opened) {
      screen = &opened;
      close(opened);
      EXPECT_EQ(ui::FindScreen(Name()), nullptr);
    });
    m_main->UnloadOtherForms();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(screen.isNull()) << "it is still there";
  }

 private:
  QString MakeWideFile() {
    const Session before = Global();
    const QString path = PathOf(u"wide.ddb"_s);
    CardDesign design{.MainField = u"Company"_s, .Pages = {}};
    design.Pages[0].Fields = {{u"City"_s, FieldKind::Text},
                              {u"Turnover"_s, FieldKind::Number},
                              {u"Active"_s, FieldKind::YesNo},
                              {u"Due"_s, FieldKind::Date}};
    design.Pages[1].Fields = {{u"Trade"_s, FieldKind::Text}};
    MakeCardFile(path, design);
    db::Recordset rows = Global().File().OpenRecordset(u"MainData");
    rows.AddNew();
    rows.Set(u"Index@", 1);
    rows.Set(u"Company", u"Card 1"_s);
    rows.Set(u"City", u"Łódź"_s);
    rows.Set(u"Remarks", u" "_s);
    rows.Update();
    Global() = before;
    return path;
  }
};

/// The screens that can be closed: all but the frame.
class ChildScreenTest : public ScreenTest {};

TEST_P(ScreenTest, Controls_ThatTakeTheFocus_HaveASpokenName) {
  Visit([](QWidget& screen) {
    int named = 0;
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
      if (!HoldsFocus(*widget, Qt::StrongFocus) || !widget->isVisibleTo(&screen)) continue;
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(spoken, nullptr) << NameOf(*widget);
      EXPECT_FALSE(spoken->text(QAccessible::Name).trimmed().isEmpty()) << NameOf(*widget);
      ++named;
    }
    EXPECT_GT(named, 0);
  });
}

TEST_P(ScreenTest, Tab_FromTheFirstControl_ReachesEachOnceAndComesRound) {
  Visit([](QWidget& screen) {
    std::map<std::string, int> expected;
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
      if (HoldsFocus(*widget, Qt::TabFocus) && widget->isVisibleTo(&screen) && widget->isEnabled() &&
          !IsChoiceLeftOut(*widget)) {
        ++expected[NameOf(*widget)];
      }
    }
    std::map<std::string, int> reached;
    std::string order;
    const QPointer<QWidget> first = QApplication::focusWidget();
    for (int steps = 0; steps < 300; ++steps) {
      ++reached[NameOf(*QApplication::focusWidget())];
      order += QApplication::focusWidget()->objectName().toStdString() + " ";
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      ASSERT_NE(QApplication::focusWidget(), nullptr);
      if (QApplication::focusWidget() == first) break;
    }
    EXPECT_EQ(reached, expected) << order;
  });
}

TEST_P(ScreenTest, AccessKeysAndShortcuts_WithTheFramesMenu_AreUnique) {
  Visit([this](QWidget& screen) {
    std::map<QString, std::vector<std::string>> owners;
    const auto enter = [&owners](const QKeySequence& keys, const QObject* owner) {
      if (!keys.isEmpty()) owners[keys.toString()].push_back(owner->objectName().toStdString());
    };
    for (const QAction* menu : m_main->menuBar()->actions())
      enter(QKeySequence::mnemonic(menu->text()), menu);
    for (const QAction* entry : m_main->findChildren<QAction*>()) enter(entry->shortcut(), entry);
    for (const QShortcut* shortcut : m_main->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
      enter(shortcut->key(), shortcut);
    if (&screen != m_main.get()) {
      for (const QShortcut* shortcut : screen.findChildren<QShortcut*>()) enter(shortcut->key(), shortcut);
    }
    for (const QAbstractButton* button : screen.findChildren<QAbstractButton*>()) {
      if (button->isVisibleTo(&screen)) enter(button->shortcut(), button);
    }
    for (const QLabel* label : screen.findChildren<QLabel*>()) {
      if (label->isVisibleTo(&screen) && label->buddy() != nullptr && label->textFormat() != Qt::RichText)
        enter(QKeySequence::mnemonic(label->text()), label);
    }
    EXPECT_GE(owners.size(), 5U);
    for (const auto& [keys, holders] : owners) {
      EXPECT_EQ(holders.size(), 1U) << keys.toStdString() << ": " << testing::PrintToString(holders);
    }
  });
}

TEST_P(ScreenTest, Grids_GiveTheirHeadings) {
  Visit([](QWidget& screen) {
    for (const QTableView* grid : screen.findChildren<QTableView*>()) {
      ASSERT_NE(grid->model(), nullptr);
      for (int column = 0; column < grid->model()->columnCount(); ++column) {
        if (grid->isColumnHidden(column)) continue;
        EXPECT_FALSE(grid->model()->headerData(column, Qt::Horizontal).toString().trimmed().isEmpty())
            << NameOf(*grid) << " column " << column;
      }
    }
    const std::map<QString, qsizetype> grids{{u"ResultQuery"_s, 1}, {u"fQSearch"_s, 4}, {u"Search"_s, 2}};
    const auto known = grids.find(Name());
    const qsizetype least = known == grids.end() ? 0 : known->second;
    EXPECT_GE(screen.findChildren<QTableView*>().size(), least);
  });
}

TEST_P(ChildScreenTest, Escape_ClosesItAndFreesIt) {
  ExpectCloses([](const QWidget&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
}

TEST_P(ChildScreenTest, CloseBox_ClosesItAndFreesIt) {
  ExpectCloses([this](QWidget& screen) {
    QWidget* carrier = screen.isWindow() ? &screen : screen.parentWidget();
    ASSERT_NE(carrier, m_main.get());
    carrier->close();
  });
}

std::string CaseName(const testing::TestParamInfo<ScreenCase>& info) { return info.param.Name; }

INSTANTIATE_TEST_SUITE_P(Conformance, ScreenTest, testing::ValuesIn(screens), CaseName);
INSTANTIATE_TEST_SUITE_P(Conformance, ChildScreenTest, testing::ValuesIn(screens.begin() + 1, screens.end()),
                         CaseName);

}  // namespace
}  // namespace velmora
