// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"
#include "forms/Buttons.h"
#include "forms/ControlArray.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/SSTab.h"
#include "forms/TextBox.h"
#include "resources/Text.h"

#include <QList>

#include <array>
#include <functional>
#include <optional>

class QLayout;

namespace velmora {

/// What tells the two search screens apart in what they share.
struct SearchDesign {
  QStringView Name;
  strings::Text Title;
  /// The tab of a page before those of the contacts and of the cards.
  std::optional<strings::Text> FirstTab;

  strings::Text NameTip;
  strings::Text Search;
  ui::Ampersand SearchKey;
  strings::Text SearchTip;
  std::array<strings::Text, 2> CardOrderTips;
  strings::Text CardTip;
  strings::Text PrintTip;
  /// The heading of the card numbers.
  strings::Text CardNumber;
  int CardNameWidth;

  strings::Text ContactNameTip;
  strings::Text FindContact;
  strings::Text FindContactTip;
  std::array<strings::Text, 3> ContactOrderTips;
  strings::Text Contact;
  strings::Text ContactTip;
  strings::Text ContactHelpTip;
  strings::Text ContactHeadings;
  int LastNameWidth;
};

/// What the quick search and the search by name share: a page of contacts and one of cards under the last two
/// tabs, each with a box for a text, a grid, sort buttons and what leads on from there. What is searched, and
/// how, is theirs.
class SearchForm : public ui::Form {
  Q_OBJECT

 protected:
  explicit SearchForm(const SearchDesign& design);

  [[nodiscard]] int CardsTab() const { return SSTab1->Tabs() - 1; }
  [[nodiscard]] int ContactsTab() const { return SSTab1->Tabs() - 2; }
  [[nodiscard]] QWidget* CardsPage() const { return SSTab1->widget(CardsTab()); }
  [[nodiscard]] QWidget* ContactsPage() const { return SSTab1->widget(ContactsTab()); }

  /// Puts the two pages together, each with these controls at its head, and gives the controls in the order
  /// of the Tab key.
  [[nodiscard]] QList<QWidget*> LayOutCards(QLayout* head, const QList<QWidget*>& headStops);
  [[nodiscard]] QList<QWidget*> LayOutContacts(QLayout* head, const QList<QWidget*>& headStops);
  /// The last step of making a screen: the tabs fill it, and stand first in the order of the Tab key.
  void Finish(const QList<QWidget*>& stops);

  /// A button that a click on says of that the program does not have what it is for.
  static ui::SSCommand* NewInertButton(QWidget* page, const QString& name, const QString& caption,
                                       const QString& tip, const QString& notice);
  /// The Help button of a page.
  [[nodiscard]] ui::SSCommand* NewHelpButton(QWidget* page, const QString& name, const QString& tip);

  /// Give a grid its columns.
  void initFlxCard();
  void initFlxAgent();
  /// Give a grid rows, and its columns then.
  void ShowCards(db::Recordset rows);
  void ShowContacts(db::Recordset rows);

  /// Runs what a control is for under the hourglass. A failure ends it, and a notice at the control tells;
  /// false then.
  static bool Run(QWidget* control, const std::function<void()>& step);
  /// For a sort button that has nothing to sort: it comes up again, and a notice says why.
  static void RefuseSort(ui::SSRibbon& button, const QString& notice);
  /// Releases sort buttons whose order the rows are not in any more.
  static void Release(const ui::ControlArray<ui::SSRibbon>& buttons);

  void OnLoad() override;

  virtual void cmdSearchClick() = 0;
  /// A sort button was pressed, or released by a second click.
  virtual void cmdCardClick(ui::SSRibbon& button) = 0;
  virtual void cmdFindFirstClick() = 0;
  virtual void cmdAgentClick(ui::SSRibbon& button) = 0;
  virtual void cmdToAgentClick();

  ui::SSTab* SSTab1;

  ui::TextBox* txtName = nullptr;
  ui::SSCommand* cmdSearch = nullptr;
  ui::ControlArray<ui::SSRibbon> cmdCard;
  ui::FlexGrid* flxCard = nullptr;
  ui::SSCommand* cmdToCard = nullptr;
  ui::SSCommand* cmdPrint = nullptr;
  ui::SSCommand* CmdHelp1 = nullptr;

  ui::TextBox* txtAgent = nullptr;
  ui::SSCommand* cmdFindFirst = nullptr;
  ui::ControlArray<ui::SSRibbon> cmdAgent;
  ui::FlexGrid* flxAgent = nullptr;
  ui::SSCommand* cmdToAgent = nullptr;
  ui::SSCommand* cmdPrintAgent = nullptr;
  ui::SSCommand* CmdHelp = nullptr;

 private:
  void SetupCards();
  void SetupContacts();
  void cmdToCardClick();
  /// Shows the card of the current row; false when there is no such row, or a card that stays open stops it.
  bool HandOver();

  const SearchDesign& m_design;
};

}  // namespace velmora
