// SPDX-License-Identifier: MIT
#include "cards/ShowTable.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "cards/CardNames.h"
#include "cards/CardNumbers.h"
#include "cards/LayoutCard.h"
#include "cards/Reminders.h"
#include "cards/ShowContacts.h"
#include "forms/Apostrophe.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/Screen.h"
#include "frame/Session.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

const CardFormDesign viewerDesign{
    .Screen = CardScreen::Viewer,
    .Name = u"ShowTable",
    .Title = strings::viewer::Title,
    .Places = {{{u"NameCard", 200, 600},
                {u"NameRecord", 1215, 600, 7095, 285},
                {u"IndexText", 1215, -15, 810, 285}}},
    .CheckHeight = 195,
    .CommentOpen = {960, 3040},
    .CommentClosed = {3330, 670},
    .OkTip = strings::viewer::OkTip,
    .CancelTip = strings::viewer::CancelTip,
    .HelpTip = strings::viewer::HelpTip,
    .NameTip = strings::viewer::NameTip,
    .NumberFieldTip = strings::viewer::NumberFieldTip,
    .CheckFieldTip = strings::viewer::CheckFieldTip,
    .CommentTip = strings::viewer::CommentTip,
    .PageTip = strings::viewer::PageTip,
};

constexpr ui::Place NumberLabelPlace{.Left = 200, .Top = -15, .Width = 985, .Height = 285};

}  // namespace

ShowTable::ShowTable() : CardForm(viewerDesign) {
  ui::NewLabel(this, u"Label1"_s, strings::viewer::CardNo)->SetPlace(NumberLabelPlace);
  IndexText = ui::NewControl<ui::SSPanel>(this, u"IndexText"_s, {.Tip = strings::viewer::NumberTip});
  PlaceControls();
  connect(NameRecord, &ui::TextBox::Change, this, [this] { NameEdited = true; });
  connect(DescrText, &ui::MemoBox::Change, this, &ShowTable::MarkEdited);
}

ShowTable* ShowTable::Opened() { return dynamic_cast<ShowTable*>(ui::FindScreen(viewerDesign.Name)); }

void ShowTable::OnLoad() {
  Trap([this] {
    NameDate[0].SetBackGround();
    ResLoader();
    if (Cards(Global().File()).IsEmpty()) return;
    TakePages(LayoutCard(*this, FieldLabels, FieldValues));
    ColorByFocus(*NameRecord);
    NameText.ForEach([this](ui::TextBox& box) { ColorByFocus(box); });
    ShowIndex(Global().CurCard);
    SetColorB(0);
    Global().CardChanged = False;
  });
}

void ShowTable::ColorByFocus(ui::TextBox& box) {
  const auto atRest = [&box] {
    box.SetBackColor(ui::Role::ButtonFace);
    box.SetForeColor(ui::Role::DarkRed);
  };
  atRest();
  connect(&box, &ui::TextBox::LostFocus, this, atRest);
  connect(&box, &ui::TextBox::GotFocus, this, [&box] {
    box.SetBackColor(ui::Role::White);
    box.SetForeColor(ui::Role::Ink);
  });
}

void ShowTable::ShowIndex(std::int32_t number) {
  Trap([this, number] {
    if (!AskSaveChanges()) return;
    const auto card = CardToShow(number, Global().CurCard);
    if (card) return ShowCard(*card);
    DescrText->SetText({});
  });
}

void ShowTable::ShowCard(std::int32_t number) {
  Frame& frame = Frame::Main();
  const db::Recordset row = Cards(Global().File()).CardOf(number);
  const std::int32_t card = row[schema::CardNumber.View()].Long();
  // Not before the row is there: a comment that is emptied over a card that stays would be lost with its next
  // save.
  DescrText->SetText({});
  Global().CurCard = card;
  IndexText->SetCaption(CardNumberText(card));
  const QString name = row[MainFieldName()].TextOr({});
  NameRecord->SetText(name);
  frame.ShowInStrip(name, card);
  ShowFields(row, card);
  if (const db::Value remarks = row[schema::Remarks.View()]; !remarks.IsNull())
    DescrText->SetText(remarks.Text());
  ShowContacts();
  ClearMarks();
}

void ShowTable::ShowFields(const db::Recordset& row, std::int32_t card) {
  CardReminders reminders(card);
  for (std::size_t k = 0; k < Fields().size(); ++k) Fields()[k]->Show(row, ColumnOf(k), reminders);
}

bool ShowTable::SaveCard() {
  const std::int32_t card = Global().CurCard;
  db::Recordset row = Cards(Global().File()).CardOf(card);
  if (row.AtEnd()) return Refuse(nullptr, strings::card::NoLongerThere);
  const QString name = NameRecord->Text().trimmed();
  if (name.isEmpty()) {
    ui::MsgBox(strings::viewer::EnterName);
    return Refuse(NameRecord);
  }
  const auto holder = FirstCardNamed(name, NameCard->Caption());
  if (holder && *holder != card) {
    NameRecord->SetText({});
    NameRecord->SetFocus();
    ui::MsgBox(strings::ThisNameAlreadyExists);
    return Refuse(NameRecord);
  }
  row.Edit();
  AboutToStore(*NameRecord);
  row.Set(NameCard->Caption(), name);
  StoreFields(row, card, ReminderSave::SetAndClear);
  row.Update();
  row.Close();
  ClearMarks();
  ShowIndex(card);
  return true;
}

void ShowTable::CancelDataClick() {
  CloseReason = CancelData->Name();
  Unload();
  ClearMarks();
  Frame::Main().ShowCard();
}

void ShowTable::OnQueryUnload(bool& cancel) {
  if (CloseReason != CancelData->Name()) cancel = !AskSaveChanges();
}

void ShowTable::OnUnload() { ClearPages(); }

QWidget* ShowTable::CheckName() {
  if (ui::RefusesApostrophe(*NameRecord)) return NameRecord;
  const QString text = NameRecord->Text();
  if (text.trimmed().isEmpty() || !NameEdited) return nullptr;
  if (NameTaken(text, NameCard->Caption())) {
    ui::MsgBox(strings::ThisNameAlreadyExists);
    NameRecord->SetText({});
    return NameRecord;
  }
  if (!SimilarNameOther(text, NameCard->Caption())) return nullptr;
  return OfferSimilarNames(strings::viewer::SimilarTitle, strings::viewer::SimilarQuestion);
}

std::array<ui::Control*, 3> ShowTable::FirstElements() const {
  return {&NameText[0], &NameCheck[0], &NameNumber[0]};
}

void ShowTable::HideFirst() {
  const auto elements = FirstElements();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (!elements[i]->Visible()) continue;
    elements[i]->SetVisible(false);
    HiddenFirst[i] = true;
  }
}

void ShowTable::AfterPageShown() {
  HiddenFirst = {};
  if (CommentOpen) HideFirst();
}

void ShowTable::AfterCommentClosed() {
  const auto elements = FirstElements();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (HiddenFirst[i]) elements[i]->SetVisible(true);
    HiddenFirst[i] = false;
  }
}

}  // namespace velmora
