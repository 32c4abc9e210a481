// SPDX-License-Identifier: MIT
#include "queries/SelectNameQuery.h"

#include "base/system/Failures.h"
#include "forms/Makers.h"
#include "forms/Screen.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/ResultQuery.h"
#include "queries/SavedQueries.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::querylist;

namespace {

constexpr int listWidth = 3600;
constexpr int listHeight = 3300;

/// Makes a stored query the last one, closes the list, and shows the result.
void ShowResult(const QString& displayName, const QString& storedName) {
  Frame::Main().SetLastQuery(storedName);
  ShowQueryResult(displayName, storedName, ui::FindScreen(u"SelectNameQuery"));
}

}  // namespace

SelectNameQuery::SelectNameQuery() : Form(u"SelectNameQuery"_s, texts::Title) {
  SetHelpTopic(topics::Queries);
  lstQuery = ui::NewControl<ui::ListBox>(this, u"lstQuery"_s, {.Spoken = texts::Queries});
  lstQuery->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
  auto* view = ui::NewCommand(this, u"Command1"_s, strings::Ok, texts::ViewTip);
  auto* remove = ui::NewCommand(this, u"cmdDel"_s, strings::Delete, texts::DeleteTip);
  auto* cancel = ui::NewCommand(this, u"Command2"_s, strings::Cancel, strings::ClickToExit);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(lstQuery, 1);
  rows->addLayout(ui::NewButtonRow({remove}, {view, cancel}));
  ui::ChainTabStops({lstQuery, view, remove, cancel});
  connect(lstQuery, &ui::ListBox::DblClick, this, &SelectNameQuery::ViewClick);
  connect(lstQuery, &ui::ListBox::EnterPressed, this, &SelectNameQuery::ViewClick);
  connect(view, &ui::SSCommand::Click, this, &SelectNameQuery::ViewClick);
  connect(remove, &ui::SSCommand::Click, this, &SelectNameQuery::DeleteClick);
  connect(cancel, &ui::SSCommand::Click, this, [this] {
    Unload();
    Frame::Main().ShowCard();
  });
}

void SelectNameQuery::OnLoad() { setWindowIcon(Frame::Main().ScreenIcon()); }

void SelectNameQuery::OnActivate() {
  Trap([this] {
    lstQuery->Clear();
    lstQuery->AddItems(FillQueryNames(Global().File(), Global().UserName));
  });
}

void SelectNameQuery::ViewClick() {
  Trap([this] {
    const int line = lstQuery->ListIndex();
    if (line < 0) return;
    const QString name = lstQuery->List(line);
    const QString stored = StoredQueryName(name, Global().UserName);
    if (OpenOrDelete(Global().File(), stored) == OpenQuery::Deleted) {
      lstQuery->RemoveItem(line);
      return;
    }
    ShowResult(name, stored);
  });
}

void SelectNameQuery::DeleteClick() {
  Trap([this] {
    const int line = lstQuery->ListIndex();
    if (line < 0) return;
    if (DeleteQuery(Global().File(), StoredQueryName(lstQuery->List(line), Global().UserName))) {
      lstQuery->RemoveItem(line);
    }
  });
}

void ReturnToQuery() {
  Trap([] {
    Frame& frame = Frame::Main();
    frame.RepaintMain();
    if (Global().NoFile != False) return;
    const QString last = frame.LastQuery();
    switch (DecideReturn(Global().File(), last)) {
      case ReturnStep::Nothing:
        return;
      case ReturnStep::OtherList:
        if (ui::Screen* list = ui::FindScreen(u"SelectNameQuery"); list != nullptr) list->Unload();
        return;
      case ReturnStep::Show:
        ShowResult(DisplayNameOf(last), last);
    }
  });
}

}  // namespace velmora
