// SPDX-License-Identifier: MIT
#pragma once

#include "cards/CardField.h"
#include "controls/DateCtrl.h"
#include "forms/Buttons.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/MaskEdBox.h"
#include "forms/MemoBox.h"
#include "forms/NamedPlaces.h"
#include "forms/TextBox.h"
#include "forms/ptrArray.h"
#include "frame/Frame.h"
#include "resources/Text.h"

#include <array>
#include <cstdint>

namespace velmora {

/// Where the comment box stands, in twips.
struct CommentPlace {
  int Top = 0;
  int Height = 0;
};

/// What a card screen is given: where its own controls stand and what all say.
struct CardFormDesign {
  CardScreen Screen;
  QStringView Name;
  strings::Text Title;
  std::array<ui::NamedPlace, 3> Places;
  int CheckHeight = 0;
  CommentPlace CommentOpen;
  CommentPlace CommentClosed;
  strings::Text OkTip;
  strings::Text CancelTip;
  strings::Text HelpTip;
  strings::Text NameTip;
  strings::Text NumberFieldTip;
  strings::Text CheckFieldTip;
  strings::Text CommentTip;
  strings::Text PageTip;
};

/// What the two card screens share: the controls of the card's fields on their pages, the moves between pages
/// and fields, the comment box, the marks of unsaved changes. When and how a card is read and written is the
/// screens' own.
class CardForm : public ui::Form {
  Q_OBJECT

  // The arrays below are made from it.
  const CardFormDesign& m_design;

 public:
  ~CardForm() override;

  [[nodiscard]] CardScreen Which() const { return m_design.Screen; }
  /// There is nothing left to save, as when the card has been deleted: nothing will be asked.
  void DropChanges() { ClearMarks(); }

  // Element 0 of each array exists from the start, hidden; the others are made by LayoutCard.
  ui::ControlArray<ui::Label> NameLab;
  ui::ControlArray<ui::TextBox> NameText;
  ui::ControlArray<ui::MaskEdBox> NameNumber;
  ui::ControlArray<ui::CheckBox> NameCheck;
  ui::ControlArray<DateCtrl> NameDate;
  ui::ControlArray<ui::SSCommand> Tab;
  ui::Label* NameCard = nullptr;
  ui::TextBox* NameRecord = nullptr;
  ui::MemoBox* DescrText = nullptr;

 protected:
  explicit CardForm(const CardFormDesign& design);

  /// Puts the controls that the layout does not move to their places; the screen calls it when it has made
  /// all.
  void PlaceControls();
  /// The screen bears the frame's picture.
  void ResLoader();
  /// Takes what LayoutCard made of the fields and shows the first page.
  void TakePages(CardFields fields);
  /// Takes the fields down when the screen goes.
  void ClearPages();
  void ShowPage(int index);

  /// The fields in the order of the pages, the column of each at the same position.
  [[nodiscard]] const CardFields& Fields() const { return m_fields; }
  [[nodiscard]] QString ColumnOf(std::size_t field) const;
  /// Sets every column of the row, the comment last. A save's own steps stand round it.
  void StoreFields(db::Recordset& row, std::int32_t card, ReminderSave reminders);

  void MarkEdited();
  void ClearMarks();
  /// Asks whether to save what was changed. False when it was to be saved and is not: then the question
  /// stands unanswered, and what asked for it stops. No drops the change.
  [[nodiscard]] bool AskSaveChanges();
  /// Saves the card; true when it is stored. Where it is not, the marks stay, the focus goes to what is at
  /// fault, and a notice says why where no message did.
  bool Save();
  /// Notes what the save is about to store, which is at fault when it fails there.
  void AboutToStore(ui::Control& control);
  /// The next step of the save concerns no one field.
  void AboutToStore() { m_atFault = {}; }
  /// The save refuses what a control holds, or the card as a whole: false. The notice says why; a refusal
  /// that the user has been told by a message has none.
  [[nodiscard]] bool Refuse(ui::Control* control, const QString& notice = {});
  /// The question stands unanswered until what it is about is stored or dropped. Brings the screen into view.
  void LeaveUnanswered();
  [[nodiscard]] bool IsUnanswered() const { return m_unanswered; }
  /// Asks whether to look at cards of similar names; opens the search in place of this screen if so. Gives
  /// what the check on leaving the name box has to give.
  [[nodiscard]] QWidget* OfferSimilarNames(const QString& title, const QString& question);

  /// The steps of a save: true when the card is stored. A failure leaves it as db::Error.
  [[nodiscard]] virtual bool SaveCard() = 0;
  /// Saves on the user's Yes to the question.
  [[nodiscard]] virtual bool SaveWhenAsked() { return Save(); }
  virtual void CancelDataClick() = 0;
  /// The check on leaving the name box; see ui::LeaveCheck.
  [[nodiscard]] virtual QWidget* CheckName() = 0;
  /// What the Tab key reaches before the name.
  [[nodiscard]] virtual QList<QWidget*> FirstTabStops() const { return {}; }
  virtual void AfterPageShown() {}
  virtual void AfterCommentOpened() {}
  virtual void AfterCommentClosed() {}

  ptrArray FieldLabels;
  ptrArray FieldValues;
  ui::SSCommand* EditData = nullptr;
  ui::SSCommand* CancelData = nullptr;
  ui::SSCommand* CmdHelp = nullptr;
  ui::SSCommand* cmdEdUp = nullptr;
  ui::SSCommand* cmdEdDwn = nullptr;
  std::int32_t CurPage = 1;
  /// The name of the button that began the closing.
  QString CloseReason;
  bool CardEdited = false;
  bool CommentOpen = false;

 private:
  void SetupHead();
  void SetupComment();
  void SetupButtons();
  template <typename T, typename Owner>
  void SetupField(T& box, void (Owner::*edited)());
  void SetupText(ui::TextBox& box);
  void SetupNumber(ui::MaskEdBox& box);
  void SetupCheck(ui::CheckBox& box);
  void SetupDate(DateCtrl& box);
  void SetupPageButton(ui::SSCommand& button);
  void ChainTabStops();
  void ShowFieldsOf(int page);
  void TellFault();
  /// Brings a control into view, whatever its page, and gives it the focus.
  void GoTo(ui::Control& control);
  void OpenComment();
  void CloseComment();
  void SetFieldTabStops(bool reachable);
  void StepPage(int direction);
  void OpenValueList(int index);

  /// What the save was about when it stopped.
  struct Fault {
    ui::Control* Control = nullptr;
    QString Notice;
  };

  CardFields m_fields;
  Fault m_atFault;
  bool m_unanswered = false;
  /// The focus is on its way to what is at fault: the box that it leaves was looked at before the save.
  bool m_goingToFault = false;
};

}  // namespace velmora
