// SPDX-License-Identifier: MIT
#include "cards/CardForm.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cards/CardNames.h"
#include "cards/CardPlan.h"
#include "cards/frmReminder.h"
#include "forms/Apostrophe.h"
#include "forms/AsksForValues.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "forms/PageButtons.h"
#include "forms/TabChain.h"
#include "frame/Session.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// Room for three columns and the row of buttons, and small enough for the editor to stand under the frame's
// strip.
constexpr int InnerWidth = 9450;
constexpr int InnerHeight = 4500;

// What both screens place alike; the screens place the rest.
constexpr auto CommonPlaces = std::to_array<ui::NamedPlace>({{u"DescrText", 200, 3330, 9205, 670},
                                                             {u"EditData", 200, 4140, 1095, 315},
                                                             {u"CancelData", 1830, 4140, 1095, 315},
                                                             {u"CmdHelp", 3460, 4140, 1095, 315},
                                                             {u"cmdEdUp", 9090, 4020, 285, 285},
                                                             {u"cmdEdDwn", 8790, 4020, 285, 285}});
// A field stands here only when the layout could not be finished.
constexpr ui::Place FieldPlace{
    .Left = 1215, .Top = 960, .Width = plan::FieldWidth, .Height = plan::FieldHeight};
constexpr ui::Place LabelPlace{.Left = 200, .Top = 960, .Width = 985, .Height = plan::FieldHeight};

/// The widget of a control that takes the focus.
QWidget* FocusTarget(const ui::Control& control) {
  QWidget* widget = control.Widget();
  return widget->focusProxy() != nullptr ? widget->focusProxy() : widget;
}

/// Shows one of the two arrow buttons in place of the other, which may have the focus.
void Swap(ui::SSCommand& hidden, ui::SSCommand& shown) {
  const bool focused = hidden.hasFocus();
  shown.SetVisible(true);
  if (focused) shown.SetFocus();
  hidden.SetVisible(false);
}

}  // namespace

CardForm::CardForm(const CardFormDesign& design)
    : Form(design.Name.toString(), design.Title),
      m_design(design),
      NameLab(this, u"NameLab"_s,
              [](ui::Label& label) {
                label.SetPlace(LabelPlace);
                label.SetVisible(false);
              }),
      NameText(this, u"NameText"_s, [this](ui::TextBox& box) { SetupText(box); }),
      NameNumber(this, u"NameNumber"_s, [this](ui::MaskEdBox& box) { SetupNumber(box); }),
      NameCheck(this, u"NameCheck"_s, [this](ui::CheckBox& box) { SetupCheck(box); }),
      NameDate(this, u"NameDate"_s, [this](DateCtrl& box) { SetupDate(box); }),
      Tab(this, u"Tab"_s, [this](ui::SSCommand& button) { SetupPageButton(button); }) {
  NameNumber[0].setToolTip(design.NumberFieldTip);
  SetupHead();
  SetupComment();
  SetupButtons();
  ui::AddPageKeys(this, [this](int direction) { StepPage(direction); });
  SetInnerSize(InnerWidth, InnerHeight);
}

CardForm::~CardForm() = default;

void CardForm::SetupHead() {
  NameRecord = ui::NewControl<ui::TextBox>(this, u"NameRecord"_s, {.Tip = m_design.NameTip});
  NameCard = ui::NewLabel(this, u"NameCard"_s, {}, NameRecord);
  NameCard->SetPlace(LabelPlace);
  connect(NameRecord, &ui::TextBox::Change, this, &CardForm::MarkEdited);
  connect(NameRecord, &ui::TextBox::EnterPressed, this, [this] { FieldValues.SetFirst(CurPage); });
  ui::CheckOnLeave(NameRecord, [this] { return m_goingToFault ? nullptr : CheckName(); });
}

void CardForm::SetupComment() {
  DescrText = ui::NewControl<ui::MemoBox>(this, u"DescrText"_s,
                                          {.Tip = m_design.CommentTip, .Spoken = strings::card::Comment});
  const auto arrow = [this](const QString& name, const QString& spoken, Qt::ArrowType type) {
    auto* button = ui::NewControl<ui::SSCommand>(this, name, {.Spoken = spoken});
    button->SetArrow(type);
    return button;
  };
  cmdEdUp = arrow(u"cmdEdUp"_s, strings::card::EnlargeComment, Qt::UpArrow);
  connect(cmdEdUp, &ui::SSCommand::Click, this, [this] { Trap([this] { OpenComment(); }); });
  cmdEdDwn = arrow(u"cmdEdDwn"_s, strings::card::ShrinkComment, Qt::DownArrow);
  cmdEdDwn->SetVisible(false);
  connect(cmdEdDwn, &ui::SSCommand::Click, this, [this] { Trap([this] { CloseComment(); }); });
}

void CardForm::SetupButtons() {
  EditData = ui::NewCommand(this, u"EditData"_s, strings::Ok, m_design.OkTip);
  connect(EditData, &ui::SSCommand::Click, this, [this] { Save(); });
  CancelData = ui::NewCommand(this, u"CancelData"_s, strings::Cancel, m_design.CancelTip);
  connect(CancelData, &ui::SSCommand::Click, this, [this] { CancelDataClick(); });
  SetHelpTopic(topics::Cards);
  CmdHelp = ui::NewCommand(this, u"CmdHelp"_s, strings::Help, m_design.HelpTip);
  connect(CmdHelp, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
}

template <typename T, typename Owner>
void CardForm::SetupField(T& box, void (Owner::*edited)()) {
  box.SetVisible(false);
  connect(&box, edited, this, &CardForm::MarkEdited);
  connect(&box, &T::EnterPressed, this, [this, &box] { FieldValues.SetNext(box.Index(), CurPage); });
}

void CardForm::SetupText(ui::TextBox& box) {
  box.SetPlace(FieldPlace);
  SetupField(box, &ui::TextBox::Change);
  ui::WhenAskedForValues(box, [this, &box] { OpenValueList(box.Index()); });
  ui::CheckOnLeave(&box, [this, &box]() -> QWidget* {
    return !m_goingToFault && ui::RefusesApostrophe(box) ? &box : nullptr;
  });
}

void CardForm::SetupNumber(ui::MaskEdBox& box) {
  box.SetPlace(FieldPlace);
  box.SetMask(NumberMask.toString());
  SetupField(box, &ui::MaskEdBox::Change);
}

void CardForm::SetupCheck(ui::CheckBox& box) {
  box.setToolTip(m_design.CheckFieldTip);
  box.SetPlace({FieldPlace.Left, FieldPlace.Top, plan::CheckWidth, m_design.CheckHeight});
  SetupField(box, &ui::CheckBox::Click);
}

void CardForm::SetupDate(DateCtrl& box) {
  box.SetPlace({FieldPlace.Left, FieldPlace.Top, plan::DesignedDateWidth, FieldPlace.Height});
  SetupField(box, &DateCtrl::Change);
  connect(&box, &DateCtrl::Click, this, [&box] { ShowReminder(box); });
}

void CardForm::SetupPageButton(ui::SSCommand& button) {
  button.SetPlace({0, 0, plan::PageButtonWidth, plan::PageButtonHeight});
  button.SetVisible(false);
  connect(&button, &ui::SSCommand::Click, this, [this, &button] { ShowPage(button.Index()); });
}

void CardForm::PlaceControls() {
  ui::PlaceControls(*this, CommonPlaces);
  ui::PlaceControls(*this, m_design.Places);
}

void CardForm::ResLoader() { setWindowIcon(Frame::Main().ScreenIcon()); }

void CardForm::TakePages(CardFields fields) {
  m_fields = std::move(fields);
  NameNumber.ForEach([this](ui::MaskEdBox& box) { box.setToolTip(m_design.NumberFieldTip); });
  Tab.ForEach([this](ui::SSCommand& button) { button.setToolTip(m_design.PageTip); });
  ChainTabStops();
  ShowFieldsOf(1);
}

void CardForm::ClearPages() {
  m_fields.clear();
  FieldLabels.ClearAll();
  FieldValues.ClearAll();
}

void CardForm::ChainTabStops() {
  QList<QWidget*> stops = FirstTabStops();
  stops += NameRecord;
  for (const auto& field : m_fields) stops += field->Control().Widget();
  stops += {DescrText, cmdEdDwn, cmdEdUp, EditData, CancelData, CmdHelp};
  ui::ChainTabStops(stops + Tab.Widgets());
}

void CardForm::ShowFieldsOf(int page) {
  for (ptrArray* controls : {&FieldLabels, &FieldValues}) {
    controls->HideAll();
    controls->Show(page);
  }
  CurPage = page;
}

void CardForm::ShowPage(int index) {
  ShowFieldsOf(index + 1);
  ui::MarkPageButton(Tab, index, ui::Role::Ink);
  AfterPageShown();
}

void CardForm::StepPage(int direction) {
  const auto next = ui::NextPageButton(Tab, CurPage - 1, direction);
  if (!next) return;
  QWidget* focus = focusWidget();
  const bool onField = std::ranges::any_of(
      m_fields, [focus](const auto& field) { return FocusTarget(field->Control()) == focus; });
  ShowPage(*next);
  if (onField) FieldValues.SetFirst(CurPage);
}

void CardForm::OpenComment() {
  CommentOpen = true;
  DescrText->SetTop(m_design.CommentOpen.Top);
  DescrText->SetHeight(m_design.CommentOpen.Height);
  // The fields stay where they are, behind it.
  DescrText->raise();
  SetFieldTabStops(false);
  AfterCommentOpened();
  Swap(*cmdEdUp, *cmdEdDwn);
}

void CardForm::CloseComment() {
  CommentOpen = false;
  DescrText->SetHeight(m_design.CommentClosed.Height);
  DescrText->SetTop(m_design.CommentClosed.Top);
  SetFieldTabStops(true);
  AfterCommentClosed();
  Swap(*cmdEdDwn, *cmdEdUp);
}

void CardForm::SetFieldTabStops(bool reachable) {
  for (const auto& field : m_fields)
    FocusTarget(field->Control())->setFocusPolicy(reachable ? Qt::StrongFocus : Qt::ClickFocus);
}

QString CardForm::ColumnOf(std::size_t field) const { return NameLab[static_cast<int>(field)].Caption(); }

void CardForm::StoreFields(db::Recordset& row, std::int32_t card, ReminderSave reminders) {
  for (std::size_t k = 0; k < m_fields.size(); ++k) {
    AboutToStore(m_fields[k]->Control());
    m_fields[k]->Store(row, ColumnOf(k));
  }
  AboutToStore(*DescrText);
  if (DescrText->Text().isEmpty()) DescrText->SetText(u" "_s);
  row.Set(schema::Remarks.View(), DescrText->Text());
  // Only when every column has taken its value: a reminder is written at once, and would stay behind when the
  // card is not.
  for (std::size_t k = 0; k < m_fields.size(); ++k) {
    AboutToStore(m_fields[k]->Control());
    m_fields[k]->StoreReminder(ColumnOf(k), card, reminders);
  }
  AboutToStore();
}

void CardForm::MarkEdited() {
  CardEdited = true;
  Global().CardChanged = True;
}

void CardForm::ClearMarks() {
  CardEdited = false;
  m_unanswered = false;
  Global().CardChanged = False;
}

bool CardForm::AskSaveChanges() {
  // Nothing to ask leaves the marks alone: CardChanged may be the other card screen's.
  if (!CardEdited) return true;
  const ui::MsgAnswer answer =
      ui::MsgBox({.Text = strings::SaveChangesQuestion, .Buttons = ui::MsgButtons::YesNo});
  if (answer == ui::MsgAnswer::Yes) {
    // Only a save that stores the card answers.
    LeaveUnanswered();
    if (!SaveWhenAsked()) return false;
  }
  ClearMarks();
  return true;
}

void CardForm::LeaveUnanswered() {
  m_unanswered = true;
  // It may be minimized, and what is at fault is to be seen.
  BringToFront();
}

bool CardForm::Save() {
  AboutToStore();
  bool stored = false;
  Trap([&] { stored = SaveCard(); },
       [this](const std::exception& failure) {
         m_atFault.Notice = strings::card::NotSaved + QString::fromUtf8(failure.what());
       });
  if (!stored) TellFault();
  return stored;
}

void CardForm::TellFault() {
  if (m_atFault.Control != nullptr) GoTo(*m_atFault.Control);
  if (m_atFault.Notice.isEmpty()) return;
  if (m_atFault.Control != nullptr) {
    ui::Notify(m_atFault.Control->Widget(), m_atFault.Notice);
  } else {
    ui::Notify(m_atFault.Notice);
  }
}

void CardForm::AboutToStore(ui::Control& control) { m_atFault = {.Control = &control, .Notice = {}}; }

bool CardForm::Refuse(ui::Control* control, const QString& notice) {
  m_atFault = {.Control = control, .Notice = notice};
  return false;
}

void CardForm::GoTo(ui::Control& control) {
  const auto field =
      std::ranges::find_if(m_fields, [&control](const auto& each) { return &each->Control() == &control; });
  if (field != m_fields.end()) {
    if (CommentOpen) CloseComment();
    if ((*field)->Page() != CurPage) ShowPage((*field)->Page() - 1);
  }
  m_goingToFault = true;
  control.SetFocus();
  m_goingToFault = false;
}

QWidget* CardForm::OfferSimilarNames(const QString& title, const QString& question) {
  const ui::MsgAnswer answer =
      ui::MsgBox({.Text = question, .Title = title, .Buttons = ui::MsgButtons::OkCancel});
  if (answer != ui::MsgAnswer::Ok) return nullptr;
  // What an earlier save found has been mended or will be found again.
  m_unanswered = false;
  Trap([this] { Frame::Main().SearchSimilarNames(FirstWord(NameRecord->Text())); });
  // With this screen gone, so must be the click that left the box; and when it could not go, the focus is at
  // what is at fault.
  if (m_unanswered && m_atFault.Control != nullptr) return FocusTarget(*m_atFault.Control);
  return IsClosing() ? NameRecord : nullptr;
}

void CardForm::OpenValueList(int index) {
  Global().CurFieldIndex = index;
  Frame::Main().ShowValueList(m_design.Screen);
}

}  // namespace velmora
