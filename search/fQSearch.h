// SPDX-License-Identifier: MIT
#pragma once

#include "search/SearchForm.h"
#include "search/SearchRows.h"

namespace velmora {

/// The quick search: asks the file for the cards with a text in their name, the contacts with one in their
/// first or last name, and the telephone numbers with one in them, of contacts and of cards.
class fQSearch final : public SearchForm {
  Q_OBJECT

 public:
  fQSearch();

  /// Brings up the page of the cards.
  void ShowCardsTab() { SSTab1->SetTab(CardsTab()); }
  /// The same, with the search for that text done.
  void SearchCards(const QString& text);

 protected:
  void OnLoad() override;
  void OnActivate() override;

 private:
  void SetupTelephone();
  void SetupPrinting();
  void LayOut();
  [[nodiscard]] QLayout* ContactHead();
  [[nodiscard]] QList<QWidget*> LayOutTelephone();
  void TabClick();
  /// The box of the page in view that is typed into first.
  [[nodiscard]] ui::TextBox& FirstBox() const;

  void cmdSearchClick() override;
  void cmdCardClick(ui::SSRibbon& button) override;
  void cmdFindFirstClick() override { FindContact(*txtAgent, ContactName::First); }
  void cmdAgentClick(ui::SSRibbon& button) override;
  void FindContact(ui::TextBox& box, ContactName which);
  /// Gives a grid the rows of a search; without one it says first that the text was not found.
  static void ShowHits(ui::TextBox& box, const std::function<db::Recordset()>& open,
                       const std::function<void(db::Recordset)>& show);
  void cmdFindNumberClick();
  /// Shows the hits among the contacts, and among the cards; false when there is none.
  [[nodiscard]] bool FindInContacts(const QString& typed);
  [[nodiscard]] bool FindInCards(const QString& typed);
  void GridInit();
  void FTelephGridInit();

  /// The last search among the contacts.
  ContactSearch ContactSql;

  ui::TextBox* txtSname = nullptr;
  ui::SSCommand* cmdFindSName = nullptr;

  ui::TextBox* txtTeleph = nullptr;
  ui::SSCommand* cmdFindNumber = nullptr;
  ui::FlexGrid* gridNumber = nullptr;
  ui::FlexGrid* gridFTel = nullptr;
  ui::OptionButton* OPTcARD = nullptr;
  ui::OptionButton* OPTaG = nullptr;
  ui::SSCommand* cmdCardTeleph = nullptr;
  ui::SSCommand* cmdPrtAll = nullptr;
  ui::SSCommand* CmdHelp2 = nullptr;
};

}  // namespace velmora
