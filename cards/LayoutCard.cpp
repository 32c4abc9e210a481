// SPDX-License-Identifier: MIT
#include "cards/LayoutCard.h"

#include "base/system/Failures.h"
#include "cardfile/PagePlan.h"
#include "cards/CardForm.h"
#include "cards/CardPlan.h"
#include "forms/TextBox.h"
#include "frame/Frame.h"

namespace velmora {

namespace {

template <typename T>
std::unique_ptr<CardField> MakeField(T& control, const PlannedField& field) {
  control.setAccessibleName(field.Caption);
  return MakeCardField(control, field.Page);
}

std::unique_ptr<CardField> MakeValue(CardForm& screen, const PlannedField& field) {
  const bool isViewer = screen.Which() == CardScreen::Viewer;
  switch (*field.Kind) {
    case FieldKind::Text:
      return MakeField(screen.NameText.LoadOnce(field.Index), field);
    case FieldKind::Number:
      return MakeField(screen.NameNumber.LoadOnce(field.Index), field);
    case FieldKind::YesNo: {
      ui::CheckBox& check = screen.NameCheck.LoadOnce(field.Index);
      if (isViewer) check.SetBackColor(ui::Role::ButtonFace);
      return MakeField(check, field);
    }
    case FieldKind::Date: {
      DateCtrl& date = screen.NameDate.LoadOnce(field.Index);
      if (isViewer) {
        date.SetBackGround();
      } else {
        date.SetForeColor();
      }
      return MakeField(date, field);
    }
  }
  Q_UNREACHABLE();
}

/// The controls of one field, until they are placed.
struct MadeField {
  ui::Label& Label;
  ui::Control* Value;
};

MadeField MakeControls(CardForm& screen, const PlannedField& field, ptrArray& labels, ptrArray& values,
                       CardFields& fields) {
  ui::Label& label = screen.NameLab.LoadOnce(field.Index);
  label.SetCaption(field.Caption);
  labels.Add(field.Page, label);
  if (!field.Kind) return {label, nullptr};
  fields.push_back(MakeValue(screen, field));
  ui::Control& value = fields.back()->Control();
  if (*field.Kind != FieldKind::Text) value.SetWidth(field.ValueWidth);
  label.setBuddy(value.Widget());
  values.Add(field.Page, value);
  return {label, &value};
}

void MakeButtons(CardForm& screen, const CardPlan& plan) {
  for (const PlannedButton& planned : plan.Buttons) {
    ui::SSCommand& button = screen.Tab.LoadOnce(planned.At.Element);
    button.SetLeft(planned.At.Place.Left);
    button.SetTop(planned.At.Place.Top);
    button.SetCaption(planned.Caption);
    button.SetVisible(true);
  }
}

void PlaceField(const PlannedField& field, const MadeField& made) {
  if (made.Value != nullptr && field.Value) {
    made.Value->SetPlace({.Left = field.Value->Left,
                          .Top = field.Value->Top,
                          .Width = field.ValueWidth,
                          .Height = made.Value->Height()});
  }
  if (!field.Label) return;
  made.Label.SetLeft(field.Label->Left);
  made.Label.SetTop(field.Label->Top);
}

}  // namespace

CardFields LayoutCard(CardForm& screen, ptrArray& FieldLabels, ptrArray& FieldValues) {
  CardFields fields;
  Trap([&] {
    const ui::Place seek = Frame::Main().SeekBoxPlace();
    const CardPlan card =
        PlanCard(FieldRows(), CaptionRows(), FirstPageButtonLeft(seek.Left, seek.Width));
    std::vector<MadeField> made;
    made.reserve(card.Fields.size());
    for (const PlannedField& field : card.Fields)
      made.push_back(MakeControls(screen, field, FieldLabels, FieldValues, fields));
    MakeButtons(screen, card);
    screen.NameCard->SetCaption(card.NameCard);
    screen.NameRecord->setAccessibleName(card.NameCard);
    for (std::size_t i = 0; i < made.size(); ++i) PlaceField(card.Fields[i], made[i]);
  });
  return fields;
}

}  // namespace velmora
