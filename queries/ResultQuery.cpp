// SPDX-License-Identifier: MIT
#include "queries/ResultQuery.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "forms/Default.h"
#include "forms/Hourglass.h"
#include "forms/Makers.h"
#include "forms/RecordsetSource.h"
#include "forms/TabChain.h"
#include "forms/TextBox.h"
#include "forms/Waiting.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/QueryText.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QGridLayout>
#include <QList>

#include <array>
#include <memory>
#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::result;

namespace {

/// The card's number and the main field, which show as they are.
constexpr int fixedColumns = 2;
constexpr int innerWidth = 9300;
constexpr int innerHeight = 4350;
constexpr int numberWidth = 500;
constexpr int nameWidth = 2000;
constexpr int columnWidth = 1000;
// In milliseconds. The frame stands bare for so long, that the eye takes the card for another screen and not
// for one more row of the results.
constexpr int pauseBeforeCard = 1000;

}  // namespace

ResultQuery::ResultQuery() : Form(u"ResultQuery"_s, texts::Title), lstOrder(this, u"lstOrder"_s) {
  SetHelpTopic(topics::Queries);
  SetupControls();
  SetupButtons();
  SetupLayout();
  SetInnerSize(innerWidth, innerHeight);
}

void ResultQuery::SetupControls() {
  MyFlex = ui::NewControl<ui::FlexGrid>(this, u"MyFlex"_s, {.Spoken = texts::Rows});
  // The sort lists offer the headings, so a heading is the column's name and nothing more.
  MyFlex->SetTrimsHeadings(true);
  connect(MyFlex, &ui::FlexGrid::DblClick, this, &ResultQuery::ToCardClick);
  lblNameQuery = ui::NewLabel(this, u"lblNameQuery"_s, {});
  lblNumber = ui::NewLabel(this, u"lblNumber"_s, {});
  for (int i = 0; i < SortKeyCount; ++i) {
    ui::ComboBox& list = lstOrder.LoadOnce(i);
    list.SetMode(ui::ComboMode::DropDownList);
    list.setToolTip(texts::SortTip);
    list.setAccessibleName(texts::SortLabels.at(static_cast<std::size_t>(i)));
    list.SetVisible(true);
  }
  optA = ui::NewControl<ui::OptionButton>(this, u"optA"_s, {.Tip = texts::DirectionTip});
  optA->SetCaption(texts::Ascending);
  optA->SetValue(true);
  optZ = ui::NewControl<ui::OptionButton>(this, u"optZ"_s, {.Tip = texts::DirectionTip});
  optZ->SetCaption(texts::Descending);
}

void ResultQuery::SetupButtons() {
  cmdMakeOrder = ui::NewCommand(this, u"cmdMakeOrder"_s, texts::Sort, texts::SortButtonTip);
  cmdToCard = ui::NewCommand(this, u"cmdToCard"_s, texts::Card, texts::CardTip);
  cmdPrint = ui::NewCommand(this, u"cmdPrint"_s, texts::Print, texts::PrintTip);
  cmdCancel = ui::NewCommand(this, u"cmdCancel"_s, strings::Cancel, strings::ClickToExit);
  connect(cmdMakeOrder, &ui::SSCommand::Click, this, &ResultQuery::MakeOrderClick);
  connect(cmdToCard, &ui::SSCommand::Click, this, &ResultQuery::ToCardClick);
  connect(cmdCancel, &ui::SSCommand::Click, this, [this] {
    Unload();
    Frame::Main().ShowCard();
  });
}

void ResultQuery::SetupLayout() {
  auto* top = new QHBoxLayout;
  top->addWidget(ui::NewLabel(this, u"lblQueryName"_s, texts::QueryName));
  top->addWidget(lblNameQuery, 1);
  top->addWidget(ui::NewLabel(this, u"lblTotal"_s, texts::Total));
  top->addWidget(lblNumber);

  auto* sort = new QGridLayout;
  for (int i = 0; i < SortKeyCount; ++i) {
    const QString caption = texts::SortLabels.at(static_cast<std::size_t>(i));
    sort->addWidget(ui::NewLabel(this, u"lblOrder(%1)"_s.arg(i), caption, &lstOrder[i]), 0, i);
    sort->addWidget(&lstOrder[i], 1, i);
    sort->setColumnStretch(i, 1);
  }
  sort->addWidget(optA, 0, SortKeyCount);
  sort->addWidget(optZ, 1, SortKeyCount);
  sort->addWidget(cmdMakeOrder, 1, SortKeyCount + 1);

  auto* rows = new QVBoxLayout(this);
  rows->addLayout(top);
  rows->addWidget(MyFlex, 1);
  rows->addLayout(sort);
  rows->addLayout(ui::NewButtonRow({cmdToCard, cmdPrint}, {cmdCancel}));
  ui::ChainTabStops(QList<QWidget*>{MyFlex} + lstOrder.Widgets() +
                    QList<QWidget*>{optA, optZ, cmdMakeOrder, cmdToCard, cmdPrint, cmdCancel});
}

void ResultQuery::OnLoad() { setWindowIcon(Frame::Main().ScreenIcon()); }

void ResultQuery::OnActivate() {
  if (QueryKey.isEmpty()) return;
  Trap([this] {
    const ui::Hourglass hourglass;
    ShowRows(QueryKey);
    lblNumber->SetCaption(SignedNumberText(MyFlex->Rows() - 1));
    FormatGrid();
    FillOrderLists();
  });
}

void ResultQuery::ShowRows(const QString& source) {
  db::Recordset rows = Global().File().OpenRecordset(source);
  m_kinds.clear();
  for (int column = 0; column < rows.FieldCount(); ++column)
    m_kinds.push_back(FieldKindOf(rows.FieldAt(column).Type));
  MyFlex->SetDataSource(std::make_unique<RecordsetSource>(std::move(rows)));
  MyFlex->SetRow(1);
}

QStringList ResultQuery::Headings() const {
  QStringList headings;
  for (int column = 0; column < MyFlex->Cols(); ++column) headings += MyFlex->TextMatrix(0, column);
  return headings;
}

void ResultQuery::FormatGrid() {
  for (int column = fixedColumns; column < MyFlex->Cols(); ++column) {
    if (m_kinds.at(static_cast<std::size_t>(column)) == FieldKind::YesNo)
      MyFlex->SetConverter(column, YesNoText);
  }
  MyFlex->SetFormatString(ResultFormat(Headings()));
  MyFlex->SetColWidth(0, numberWidth);
  MyFlex->SetColWidth(1, nameWidth);
  // The last word on all widths, the first two columns' included.
  for (int column = 0; column < MyFlex->Cols(); ++column) MyFlex->SetColWidth(column, columnWidth);
  MyFlex->SetTextMatrix(0, 0, strings::query::Number);
  for (int column = 0; column < MyFlex->Cols(); ++column) MyFlex->SetColAlignment(column, ui::ColAlign::Left);
}

void ResultQuery::FillOrderLists() {
  const QStringList items = SortListItems(Headings());
  lstOrder.ForEach([&items](ui::ComboBox& list) {
    list.Clear();
    for (const QString& item : items) list.AddItem(item);
  });
}

void ResultQuery::MakeOrderClick() {
  Trap([this] {
    std::array<SortKey, SortKeyCount> keys;
    for (int i = 0; i < SortKeyCount; ++i) {
      keys.at(static_cast<std::size_t>(i)) = {.Text = lstOrder[i].Text(),
                                              .ListIndex = lstOrder[i].ListIndex()};
    }
    const QString order = OrderByText(keys, optA->Value());
    if (order.isEmpty()) return;
    const ui::Hourglass hourglass;
    // From the stored text each time, so that orders do not pile up.
    const QString sql = StripSqlTail(Global().File().QueryDefOf(QueryKey).SQL);
    MyFlex->SetDataSource({});
    ShowRows(sql + order);
    FormatGrid();
  });
}

void ResultQuery::ToCardClick() {
  Trap([this] {
    if (MyFlex->Row() < 1) return;
    MyFlex->SetCol(0);
    const auto card = static_cast<std::int32_t>(RoundHalfEven(LeadingNumber(MyFlex->Text())));
    Frame& frame = Frame::Main();
    // First of all: a changed card is still saved under its own number, and one that stays open stops the
    // jump.
    if (!frame.CloseCardScreens()) return;
    Global().CurCard = card;
    // Making the card current closes the other screens, this one among them.
    frame.SetWin(card, ActiveNone);
    Unload();
    ui::Pause(pauseBeforeCard);
    frame.ShowCard();
    frame.EmptySeekBox();
  });
}

void ShowQueryResult(const QString& displayName, const QString& storedName, ui::Screen* asking) {
  // A result that is open already may be the active screen, and would keep the rows of its own query.
  if (ui::Screen* open = ui::FindScreen(u"ResultQuery"); open != nullptr) open->Unload();
  auto& result = ui::Default<ResultQuery>();
  result.SetQueryName(displayName);
  result.SetQueryKey(storedName);
  if (asking != nullptr) asking->Unload();
  result.Show();
}

}  // namespace velmora
