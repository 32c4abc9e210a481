// SPDX-License-Identifier: MIT
#include "cards/LayoutCard.h"

#include "base/system/Failures.h"
#include "cards/CardForm.h"
#include "cards/CardPlan.h"
#include "frame/Frame.h"

namespace velmora {

namespace {

/// Element `index` of an array; it is made when it is none of those that exist from the start.
template <typename T>
T& ElementOf(ui::ControlArray<T>& array, int index) {
  return index == 0 ? array[0] : array.Load(index);
}

bool IsViewer(const CardForm& screen) { return screen.ScreenName() == u"ShowTable"; }
bool IsEditor(const CardForm& screen) { return screen.ScreenName() == u"EditTable"; }

ui::Control& MakeValue(CardForm& screen, FieldKind kind, int index) {
  switch (kind) {
    case FieldKind::Text:
      return ElementOf(screen.NameText, index);
    case FieldKind::Number:
      return ElementOf(screen.NameNumber, index);
    case FieldKind::YesNo: {
      ui::CheckBox& check = ElementOf(screen.NameCheck, index);
      if (IsViewer(screen)) check.SetBackColor(ui::Role::ButtonFace);
      return check;
    }
    case FieldKind::Date: {
      DateCtrl& date = ElementOf(screen.NameDate, index);
      if (IsViewer(screen)) date.SetBackGround();
      if (IsEditor(screen)) date.SetForeColor();
      return date;
    }
  }
  Q_UNREACHABLE();
}

void SetSpokenName(ui::Control& value, const QString& name) {
  // The date's own box speaks for it.
  if (auto* date = dynamic_cast<DateCtrl*>(&value)) {
    date->setAccessibleName(name);
  } else {
    value.Widget()->setAccessibleName(name);
  }
}

/// The controls of one field, until they are placed.
struct MadeField {
  ui::Label& Label;
  ui::Control* Value;
};

MadeField MakeField(CardForm& screen, const PlannedField& field, ptrArray& labels, ptrArray& values) {
  ui::Label& label = ElementOf(screen.NameLab, field.Index);
  label.SetCaption(field.Caption);
  labels.Add(field.Page, label);
  if (!field.Kind) return {label, nullptr};
  ui::Control& value = MakeValue(screen, *field.Kind, field.Index);
  if (*field.Kind != FieldKind::Text) value.SetWidth(field.ValueWidth);
  SetSpokenName(value, field.Caption);
  label.setBuddy(value.Widget());
  values.Add(field.Page, value);
  return {label, &value};
}

void MakeButtons(CardForm& screen, const CardPlan& plan) {
  for (const PlannedButton& planned : plan.Buttons) {
    ui::SSCommand& button = ElementOf(screen.Tab, planned.Index);
    button.SetLeft(planned.Where.Left);
    button.SetTop(planned.Where.Top);
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

void LayoutCard(CardForm& screen, ptrArray& FieldLabels, ptrArray& FieldValues) {
  Trap([&] {
    const ui::Place seek = Frame::Main().SeekBoxPlace();
    const CardPlan card =
        PlanCard(FieldRows(), CaptionRows(), seek.Left + seek.Width + plan::ButtonsBehindSeekBox);
    std::vector<MadeField> made;
    made.reserve(card.Fields.size());
    for (const PlannedField& field : card.Fields)
      made.push_back(MakeField(screen, field, FieldLabels, FieldValues));
    MakeButtons(screen, card);
    screen.NameCard->SetCaption(card.NameCard);
    screen.NameRecord->setAccessibleName(card.NameCard);
    for (std::size_t i = 0; i < made.size(); ++i) PlaceField(card.Fields[i], made[i]);
  });
}

}  // namespace velmora
