// SPDX-License-Identifier: MIT
#include "search/fQSearch.h"

#include "base/system/Failures.h"
#include "cardfile/FieldCatalogue.h"
#include "cardfile/Options.h"
#include "forms/Apostrophe.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "forms/RecordsetSource.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "search/TelephoneRows.h"

#include <QTabBar>

#include <memory>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::quicksearch;

namespace {

constexpr qsizetype fewestDigits = 4;

void TellNotFound(const QString& text) { ui::MsgBox({.Text = text, .Icon = ui::MsgIcon::Exclamation}); }

SearchRows Rows() { return SearchRows(Global().File()); }

}  // namespace

void fQSearch::SearchCards(const QString& text) {
  ShowCardsTab();
  txtName->SetText(text);
  cmdSearchClick();
}

void fQSearch::OnLoad() {
  SearchForm::OnLoad();
  GridInit();
  FTelephGridInit();
  initFlxAgent();
  ShowCardsTab();
}

void fQSearch::OnActivate() {
  // At the tabs is where the focus comes to when nobody gave it; in a box one can begin to type.
  const QWidget* focus = focusWidget();
  if (focus == nullptr || focus == SSTab1->tabBar()) FirstBox().SetFocus();
}

ui::TextBox& fQSearch::FirstBox() const {
  if (SSTab1->Tab() == CardsTab()) return *txtName;
  return SSTab1->Tab() == ContactsTab() ? *txtAgent : *txtTeleph;
}

void fQSearch::TabClick() {
  if (SSTab1->Tab() == CardsTab()) return;
  FirstBox().SetFocus();
  // Its page had no size yet when the screen was loaded.
  if (SSTab1->Tab() == 0 && gridNumber->Rows() == 1) GridInit();
}

void fQSearch::cmdSearchClick() {
  if (ui::RefusesApostrophe(*txtName)) return;
  Release(cmdCard);
  ShowHits(
      *txtName, [this] { return Rows().CardsNamed(MainFieldName(), txtName->Text()); },
      [this](db::Recordset cards) { ShowCards(std::move(cards)); });
}

void fQSearch::cmdCardClick(ui::SSRibbon& button) {
  if (!button.Value()) return;
  if (txtName->Text().trimmed().isEmpty()) return RefuseSort(button, texts::NothingToSort);
  // Unlike a search it says nothing of it in a message.
  if (txtName->Text().contains(u'\'')) return RefuseSort(button, strings::NoApostrophe);
  Run(flxCard, [this, &button] {
    ShowCards(Rows().CardsNamed(MainFieldName(), txtName->Text(), static_cast<CardOrder>(button.Index())));
  });
}

void fQSearch::FindContact(ui::TextBox& box, ContactName which) {
  if (ui::RefusesApostrophe(box)) return;
  ContactSql = {};
  if (box.Text().trimmed().isEmpty()) return ui::Notify(&box, texts::NoNameTyped);
  Release(cmdAgent);
  ContactSql = SearchRows::ContactsNamed(which, box.Text());
  ShowHits(
      box, [this] { return Rows().Contacts(ContactSql); },
      [this](db::Recordset contacts) { ShowContacts(std::move(contacts)); });
}

void fQSearch::ShowHits(ui::TextBox& box, const std::function<db::Recordset()>& open,
                        const std::function<void(db::Recordset)>& show) {
  std::optional<db::Recordset> rows;
  std::int64_t hits = 0;
  const auto find = [&] {
    rows = open();
    hits = rows->RecordCount();
  };
  if (!Run(&box, find)) return;
  if (hits == 0) TellNotFound(texts::TextNotFound);
  Run(&box, [&] { show(std::move(*rows)); });
}

void fQSearch::cmdAgentClick(ui::SSRibbon& button) {
  if (!button.Value()) return;
  if (ContactSql.IsEmpty()) return RefuseSort(button, texts::NothingToSort);
  Run(flxAgent, [this, &button] {
    ShowContacts(Rows().Contacts(ContactSql, static_cast<ContactOrder>(button.Index())));
  });
}

void fQSearch::cmdFindNumberClick() {
  if (ui::RefusesApostrophe(*txtTeleph)) return;
  const QString typed = txtTeleph->Text();
  // Spaces count here, but not in the search.
  if (typed.size() < fewestDigits) {
    ui::MsgBox(texts::TooFewDigits);
    return;
  }
  bool inContacts = false;
  bool inCards = false;
  const auto find = [&] {
    inContacts = FindInContacts(typed);
    inCards = FindInCards(typed);
  };
  if (!Run(txtTeleph, find)) return;
  if (!inContacts && !inCards) TellNotFound(texts::NumberNotFound);
  FTelephGridInit();
}

bool fQSearch::FindInContacts(const QString& typed) {
  db::Recordset contacts = Rows().ContactsWithNumber(typed);
  gridNumber->SetDataSource(std::make_unique<TelephoneRows>(std::move(contacts)));
  GridInit();
  return gridNumber->Rows() > 1;
}

bool fQSearch::FindInCards(const QString& typed) {
  const QString column = Options(Global().File()).TelephoneColumn();
  // The grid keeps its rows.
  if (column.isEmpty()) return false;
  gridFTel->SetDataSource(
      std::make_unique<RecordsetSource>(Rows().CardsWithNumber(MainFieldName(), column, typed)));
  return gridFTel->Rows() > 1;
}

void fQSearch::GridInit() {
  constexpr int numberWidth = 600;
  constexpr int columnWidth = 1400;
  constexpr int sharing = 4;
  constexpr int rim = 50;
  constexpr int lastShared = 4;
  constexpr int lessForIt = 200;
  gridNumber->SetFormatString(texts::ContactNumberHeadings);
  gridNumber->SetColWidth(0, numberWidth);
  gridNumber->SetColWidth(1, (ui::TwipsOf(gridNumber->width()) - numberWidth) / sharing - rim);
  for (int column = 2; column < gridNumber->Cols(); ++column) gridNumber->SetColWidth(column, columnWidth);
  for (int column = 0; column < gridNumber->Cols(); ++column)
    gridNumber->SetColAlignment(column, ui::ColAlign::Left);
  gridNumber->SetColWidth(lastShared, gridNumber->ColWidth(lastShared) - lessForIt);
}

void fQSearch::FTelephGridInit() {
  constexpr std::array widths{600, 3135, 1200};
  gridFTel->SetFormatString(texts::CardNumberHeadings);
  gridFTel->SetCols(static_cast<int>(widths.size()));
  for (int column = 0; column < gridFTel->Cols(); ++column) {
    gridFTel->SetColWidth(column, widths.at(static_cast<std::size_t>(column)));
    gridFTel->SetColAlignment(column, ui::ColAlign::Left);
  }
}

}  // namespace velmora
