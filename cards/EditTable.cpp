// SPDX-License-Identifier: MIT
#include "cards/EditTable.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "cards/CardNames.h"
#include "cards/CardNumbers.h"
#include "cards/LayoutCard.h"
#include "cards/ShowContacts.h"
#include "cards/ShowTable.h"
#include "cards/frmReminder.h"
#include "forms/Apostrophe.h"
#include "forms/Default.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "frame/Session.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

const CardFormDesign editorDesign{
    .Screen = CardScreen::Editor,
    .Name = u"EditTable",
    .Title = strings::editor::Title,
    .Places = {{{u"NameCard", 195, 600},
                {u"NameRecord", 1215, 600, 7215, 285},
                {u"IndexText", 1215, 0, 810, 285}}},
    .CheckHeight = 225,
    .CommentOpen = {970, 3060},
    .CommentClosed = {3360, 670},
    .OkTip = strings::editor::OkTip,
    .CancelTip = strings::ClickToExit,
    .HelpTip = u"",
    .NameTip = strings::editor::NameTip,
    .NumberFieldTip = u"",
    .CheckFieldTip = u"",
    .CommentTip = strings::editor::CommentTip,
    .PageTip = strings::editor::PageTip,
};

constexpr ui::Place GetEmptyPlace{.Left = 195, .Top = 0, .Width = 985, .Height = 285};
constexpr int TopInFrame = 2450;

}  // namespace

EditTable::EditTable() : CardForm(editorDesign) {
  cmdGetEmpty =
      ui::NewCommand(this, u"cmdGetEmpty"_s, strings::editor::GetEmpty, strings::editor::GetEmptyTip);
  cmdGetEmpty->SetPlace(GetEmptyPlace);
  connect(cmdGetEmpty, &ui::SSCommand::Click, this,
          [this] { IndexText->SetText(QString::number(LowestFreeNumber())); });
  IndexText = ui::NewControl<ui::TextBox>(
      this, u"IndexText"_s, {.Tip = strings::editor::NumberTip, .Spoken = strings::editor::GetEmpty});
  ui::CheckOnLeave(IndexText, [this] { return CheckNumber(); });
  PlaceControls();
}

QList<QWidget*> EditTable::FirstTabStops() const { return {cmdGetEmpty, IndexText}; }

void EditTable::OnLoad() {
  ResLoader();
  if (Global().NoFile != False) return;
  KeepClosed = false;
  PlaceInFrame(0, TopInFrame);
  IndexText->SetText(QString::number(NextCardNumber()));
  TakePages(LayoutCard(*this, FieldLabels, FieldValues));
  NameLab.ForEach([this](ui::Label& label) {
    connect(&label, &ui::Label::DblClick, this, [this, &label] { LabelDoubleClicked(label.Index()); });
  });
  for (std::size_t i = 0; i < PageUsed.size(); ++i) PageUsed[i] = FieldValues.Pages()[i].Count() != 0;
  Tab[0].SetForeColor(ui::Role::Red);
}

void EditTable::OnActivate() {
  Frame::Main().EnableDelCard(false);
  // A closing that stopped at a card that is not stored brings the screen to the front again: the focus is at
  // what is at fault, and the question will come again.
  if (IsUnanswered()) return;
  NameRecord->SetFocus();
  ClearMarks();
}

bool EditTable::SaveCard() {
  db::Recordset rows = Cards(Global().File()).ForNewCard();
  if (NameRecord->Text().trimmed().isEmpty()) {
    ui::MsgBox(strings::editor::SpecifyMainField);
    return Refuse(NameRecord);
  }
  if (IndexText->Text().trimmed().isEmpty()) return Refuse(IndexText, strings::editor::NumberMissing);
  if (NameTaken(NameRecord->Text(), NameCard->Caption())) {
    ui::MsgBox(strings::ThisNameAlreadyExists);
    return Refuse(NameRecord);
  }
  // Two readers of one box: whether the number is to be another is asked of its leading digits, without a
  // sign; what is stored is read with it. "12a" is 12 to both, "-5" a number to the second alone.
  if (CardExists(LeadingWhole(IndexText->Text()))) IndexText->SetText(QString::number(LowestFreeNumber()));
  const std::int32_t card = AtoLong(IndexText->Text());
  if (CardExists(card)) return Refuse(IndexText, strings::editor::NumberTaken);
  StoreCard(rows, card);
  rows.Close();
  Unload();
  if (!KeepClosed) ui::Default<ShowTable>().Show();
  return true;
}

void EditTable::StoreCard(db::Recordset& rows, std::int32_t card) {
  rows.AddNew();
  rows.Set(schema::CardNumber.View(), card);
  AboutToStore(*NameRecord);
  rows.Set(NameCard->Caption(), NameRecord->Text().trimmed());
  StoreFields(rows, card, ReminderSave::SetOnly);
  rows.Update();
  Global().CurCard = card;
  CardSaved = true;
  ClearMarks();
}

bool EditTable::SaveWhenAsked() {
  KeepClosed = true;
  const bool stored = Save();
  KeepClosed = false;
  return stored;
}

void EditTable::CancelDataClick() {
  CloseReason = CancelData->Name();
  Unload();
  Global().CardChanged = False;
  Frame::Main().ShowCard();
  if (Frame::Main().CardCountZero() == 1) Frame::Main().NewCard();
}

void EditTable::OnQueryUnload(bool& cancel) {
  if (CloseReason == CancelData->Name()) return;
  if (CardEdited && NameRecord->Text().trimmed().isEmpty()) {
    ui::MsgBox(strings::EnterMainFieldName);
    LeaveUnanswered();
    NameRecord->SetFocus();
    cancel = true;
    return;
  }
  cancel = !AskSaveChanges();
}

void EditTable::OnUnload() {
  ClearPages();
  Frame::Main().EnableDelCard(true);
  // Cancelled, the viewer comes next and fills the strip.
  if (CloseReason != CancelData->Name()) ShowMainString();
}

void EditTable::ShowMainString() {
  Trap([] {
    Frame& frame = Frame::Main();
    const db::Recordset row = Cards(Global().File()).CardOf(Global().CurCard);
    const db::Value name = row[MainFieldName()];
    frame.ShowInStrip(name.TextOr({}), row[schema::CardNumber.View()].Long());
    if (name.IsNull()) {
      if (ShowTable* viewer = ShowTable::Opened()) viewer->NameRecord->SetText({});
    }
    ShowContacts();
  });
}

QWidget* EditTable::CheckNumber() {
  QWidget* target = nullptr;
  Trap([this, &target] {
    const QString typed = IndexText->Text();
    const std::int32_t number = LeadingWhole(typed);
    if (number == 0 || QString::number(number).size() != typed.trimmed().size()) {
      target = NameRecord;
      return;
    }
    if (!CardExists(number)) return;
    IndexText->SetText({});
    ui::MsgBox(strings::editor::NumberExists);
    IndexText->SetText(QString::number(NextCardNumber()));
    target = NameRecord;
  });
  return target;
}

QWidget* EditTable::CheckName() {
  if (ui::RefusesApostrophe(*NameRecord)) return NameRecord;
  const QString text = NameRecord->Text();
  if (text.trimmed().isEmpty()) return nullptr;
  if (NameTakenNew(text, NameCard->Caption())) {
    ui::MsgBox(strings::ThisNameAlreadyExistsBlank);
    NameRecord->SetText({});
    return NameRecord;
  }
  if (!SimilarName(text, NameCard->Caption())) return nullptr;
  return OfferSimilarNames(strings::editor::SimilarTitle, strings::editor::SimilarQuestion);
}

void EditTable::LabelDoubleClicked(int index) {
  if (NameDate.Has(index)) ui::Default<frmReminder>().DateCtl = &NameDate[index];
  Frame::Main().ShowValueList(CardScreen::Editor);
}

}  // namespace velmora
