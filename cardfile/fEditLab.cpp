// SPDX-License-Identifier: MIT
#include "cardfile/fEditLab.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "cardfile/FieldChanges.h"
#include "forms/ComboBox.h"
#include "forms/Hourglass.h"
#include "forms/ListBox.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "forms/Screen.h"
#include "forms/Waiting.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"

#include <exception>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::fieldeditor;

namespace {

QString Reason(const std::exception& failure) { return QString::fromUtf8(failure.what()); }

QString FaultText(NameFault fault, FieldKind kind) {
  switch (fault) {
    case NameFault::ColumnTaken:
      return texts::ColumnTaken;
    case NameFault::ProgramsColumn:
      return texts::ProgramsColumn;
    case NameFault::TableTaken:
      return texts::TableTaken;
    case NameFault::ReminderTaken:
      return texts::ReminderTaken;
    case NameFault::TooLong:
      return QString(texts::NameTooLong).arg(LongestName(kind));
  }
  return {};
}

/// Whether the options take fields of that kind for a telephone or fax number, but not this one.
bool IsTooLongForTelephone(const DesignField& field) {
  return (field.Kind == FieldKind::Text || field.Kind == FieldKind::Number) &&
         field.Name.size() > schema::OptionSize;
}

QString QueriesThatGo(int queries) {
  if (queries == 0) return texts::NoQueryGoes;
  return queries == 1 ? QString(texts::OneQueryGoes) : QString(texts::QueriesGo).arg(queries);
}

}  // namespace

void fEditLab::OnLoad() {
  ResLoader();
  for (const strings::Text& kind : strings::Kinds) lstType->AddItem(kind);
  lstType->SetListIndex(0);
  LoadPages();
  TextArray.Add(1, TextIn[0]);
  SetPosition(TextIn[0], 1);
  CurrentPage = 1;
  lblCurPage->SetCaption(QString::number(CurrentPage));
  Trap([this] { LoadEditFields(); });
  ColorPageButtons();
  SetupTabOrder();
  if (ui::Screen* viewer = ui::FindScreen(u"ShowTable"); viewer != nullptr) viewer->Unload();
}

void fEditLab::LoadEditFields() {
  int index = 0;
  for (const CatalogueRow& row : FieldRows()) {
    const QString name = row.Name.value_or(QString());
    if (index == 0) {
      TextIn[0].SetText(name);
    } else {
      NextIndex = index;
      AddRow(name, row.Tab);
    }
    ++index;
  }
}

void fEditLab::AddRow(const QString& name, int page) {
  ui::TextBox& box = TextIn.Load(NextIndex);
  box.SetText(name);
  TextArray.Add(page, box);
  SetPosition(box, page);
}

void fEditLab::OnActivate() {
  NextIndex = TextArray.GetCount();
  ChoosePage(1);
}

void fEditLab::ChoosePage(int page) {
  CurrentPage = page;
  NewField->SetFocus();
  TitleViewPage(page);
  TextArray.HideAll();
  TextArray.Show(page);
  lblCurPage->SetCaption(QString::number(page));
  lstDelName->Clear();
  Trap([this, page] {
    if (const std::optional<QString> title = PageTitle(page)) PageTitleBox().SetText(*title);
    for (const CatalogueRow& row : FieldRows()) {
      if (row.Tab == page) lstDelName->AddItem(row.Name.value_or(QString()));
    }
  });
  ColorPageButtons();
}

DesignField fEditLab::Wanted() const {
  return {.Name = NewField->Text().trimmed(), .Kind = static_cast<FieldKind>(lstType->ListIndex())};
}

QWidget* fEditLab::CheckNewField() {
  QWidget* refused = Outcome(CheckNewFieldName(NewField->Text()), *NewField);
  if (refused == nullptr) TellFault();
  return refused;
}

void fEditLab::TellFault() {
  const DesignField field = Wanted();
  if (field.Name.isEmpty()) return;
  Trap([&] {
    if (const std::optional<NameFault> fault = FaultOf(field, NamesInFile())) {
      ui::Notify(NewField, FaultText(*fault, field.Kind));
    } else if (IsTooLongForTelephone(field)) {
      ui::Notify(NewField, QString(texts::TooLongForTelephone).arg(schema::OptionSize));
    }
  });
}

bool fEditLab::CheckNewName(const QString& name) {
  return Outcome(CheckNewColumn(name, CardColumns()), *NewField) == nullptr;
}

void fEditLab::AddClick() {
  NewField->SetFocus();
  if (TextArray.GetCount() > MaxFields - 1) {
    ui::MsgBox(texts::FileIsFull);
    return;
  }
  if (TextArray.GetNum(CurrentPage) >= MaxFieldsOnPage) {
    ui::Notify(NewField, texts::PageIsFull);
    return;
  }
  m_outcome = texts::NotAdded;
  Trap([this] { AddField(); },
       [this](const std::exception& failure) {
         NewField->SetText({});
         ui::Notify(NewField, m_outcome.arg(Reason(failure)));
       });
}

void fEditLab::AddField() {
  if (!CheckNewName(NewField->Text())) {
    NewField->SetFocus();
    return;
  }
  const DesignField field = Wanted();
  NewField->SetText(field.Name);
  if (field.Name.isEmpty()) {
    ui::Notify(NewField, texts::NameTheField);
    return;
  }
  // Made in part, such a field would share the list or the reminders of others, and take them with it when it
  // is deleted.
  if (const std::optional<NameFault> fault = FaultOf(field, NamesInFile())) {
    NewField->SetText({});
    ui::Notify(NewField, FaultText(*fault, field.Kind));
    return;
  }
  // A card that is open knows its columns as they are.
  if (!Frame::Main().CloseCardScreens()) return;
  MakeFieldColumn(field);
  m_outcome = texts::ColumnWithoutField;
  // A row whose page is none of the ten stands under a number of its own.
  while (TextIn.Has(NextIndex)) ++NextIndex;
  AddRow(field.Name, CurrentPage);
  TextArray.Show(CurrentPage);
  ++NextIndex;
  EnterField(field, CurrentPage);
  m_outcome = texts::AddedInPart;
  MakeFieldTables(field);
  lstDelName->AddItem(field.Name);
  NewField->SetText({});
}

void fEditLab::DeleteClick() {
  const QString name = lstDelName->Text();
  if (name == TextIn[0].Text()) {
    ui::MsgBox(texts::FirstFieldStays);
    return;
  }
  const int line = lstDelName->ListIndex();
  if (line < 0) {
    ui::MsgBox(texts::SelectAField);
    return;
  }
  const int page = CurrentPage;
  const auto remove = [&] {
    // A card that is open could not be stored without the column.
    if (!ConfirmsDeletion() || !Frame::Main().CloseCardScreens()) return;
    {
      const ui::Hourglass hourglass;
      DeleteField(name);
    }
    lstDelName->RemoveItem(line);
    Reopen(page);
  };
  Trap(remove, [](const std::exception& failure) { ui::MsgBox(Reason(failure)); });
}

bool fEditLab::ConfirmsDeletion() {
  return ui::MsgBox({.Text = texts::DeleteQuestion,
                     .Buttons = ui::MsgButtons::OkCancel,
                     .Destroys = true,
                     .Note = QueriesThatGo(QueriesLostWithAField())}) == ui::MsgAnswer::Ok;
}

void fEditLab::Reopen(int page) {
  Frame::Main().WhatWasCmdEditFieldsClick();
  ui::Yield();
  ui::Yield();
  if (auto* again = dynamic_cast<fEditLab*>(ui::FindScreen(u"fEditLab")); again != nullptr) {
    again->ChoosePage(page);
  } else {
    ui::Notify(texts::DeletedAndClosed);
  }
}

void fEditLab::ApplyClick() {
  const QString title = PageTitleBox().Text().trimmed();
  const auto apply = [&] {
    // Without a file this is what is told, whatever the box holds.
    static_cast<void>(Global().File());
    if (title.isEmpty()) {
      ui::Notify(&PageTitleBox(), texts::NameThePage);
    } else if (!SetPageTitle(CurrentPage, title)) {
      PageTitleBox().SetText({});
      ui::Notify(&PageTitleBox(), texts::PageWithoutFields);
    }
  };
  Trap(apply, [this](const std::exception& failure) {
    ui::Notify(&PageTitleBox(), QString(texts::PageNotNamed).arg(Reason(failure)));
  });
}

void fEditLab::Leave() {
  Unload();
  Frame& frame = Frame::Main();
  frame.ShowCard();
  if (frame.CardCountZero() == 1) frame.NewCard();
}

}  // namespace velmora
