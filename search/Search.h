// SPDX-License-Identifier: MIT
#pragma once

#include "search/GridSearch.h"
#include "search/SearchForm.h"

namespace velmora {

/// The search by name: fetches all cards or all contacts into a grid when it is asked to, and steps through
/// the grid from hit to hit.
class Search final : public SearchForm {
  Q_OBJECT

 public:
  Search();

 protected:
  void OnLoad() override;
  void OnActivate() override;

 private:
  void LayOut();
  void TabClick();

  void cmdGetDataCardClick();
  void cmdSearchClick() override;
  void cmdFindPrevClick();
  void cmdCardClick(ui::SSRibbon& button) override;
  void cmdGetDataAgentClick();
  void cmdFindFirstClick() override;
  void cmdPrevClick();
  void cmdAgentClick(ui::SSRibbon& button) override;
  void cmdToAgentClick() override;

  // One step of a search, and the word on it.
  struct Steps {
    GridSearch& Search;
    ui::FlexGrid& Grid;
    ui::TextBox& Box;
    ui::SSCommand& Next;
    ui::SSCommand& Previous;
  };
  static void FindNext(const Steps& steps, int column);
  static void FindPrevious(const Steps& steps);
  [[nodiscard]] Steps CardSteps() { return {m_cards, *flxCard, *txtName, *cmdSearch, *cmdFindPrev}; }
  [[nodiscard]] Steps ContactSteps() { return {m_contacts, *flxAgent, *txtAgent, *cmdFindFirst, *cmdPrev}; }

  GridSearch m_cards;
  GridSearch m_contacts;

  ui::SSCommand* cmdGetDataCard = nullptr;
  ui::SSCommand* cmdFindPrev = nullptr;
  ui::SSCommand* cmdGetDataAgent = nullptr;
  ui::SSCommand* cmdPrev = nullptr;
};

}  // namespace velmora
