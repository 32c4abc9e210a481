// SPDX-License-Identifier: MIT
#include "queries/QueryN.h"

#include "base/system/Failures.h"
#include "cardfile/PagePlan.h"
#include "forms/Default.h"
#include "forms/PageButtons.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/QueryLayout.h"
#include "queries/SavedQueries.h"
#include "queries/SelectFields.h"
#include "queries/SelectQ.h"
#include "queries/frmBoolSel.h"
#include "queries/frmSelNum.h"
#include "resources/strings.h"

#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// More fields than these make a third column, which ends at the right edge of the frame.
constexpr int inTwoColumns = 14;
constexpr int threeColumnsWidth = 9540;

void Pick(ConditionPicker* picker) { picker->Show(ui::ShowMode::Modal); }

}  // namespace

void QueryN::OnLoad() {
  Trap([this] {
    ResLoader();
    LoadQueryFields();
    LoadQueries();
  });
  SetupTabOrder();
}

void QueryN::OnActivate() {
  Trap([this] {
    ShowPage(1);
    SetColorB(0);
  });
}

void QueryN::OnUnload() {
  FieldButtons.ClearAll();
  FieldLists.ClearAll();
}

void QueryN::ResLoader() { setWindowIcon(Frame::Main().ScreenIcon()); }

void QueryN::LoadQueryFields() {
  QueryFields read = ReadQueryFields();
  m_fields = std::move(read.Fields);
  for (std::size_t i = 0; i < m_fields.size(); ++i) {
    const int index = static_cast<int>(i);
    const QueryFields::Entry& field = m_fields[i];
    ui::SSCommand& button = butField.LoadOnce(index);
    ConditionList& list = lstElement.LoadOnce(index);
    button.SetCaption(field.Caption);
    list.setAccessibleName(field.Caption);
    FieldButtons.Add(field.Page, button);
    FieldLists.Add(field.Page, list);
  }
  // Without cards nothing was read, and the screen stays empty.
  if (read.PageCaptions.front().isEmpty()) return;
  PlacePageButtons(PagesInUse(m_fields), read.PageCaptions);
  PlaceFields();
}

void QueryN::PlacePageButtons(const std::array<bool, MaxPages>& inUse,
                              const std::array<QString, MaxPages>& captions) {
  const ui::Place seek = Frame::Main().SeekBoxPlace();
  for (const auto& [element, place] : PageButtons(inUse, FirstPageButtonLeft(seek.Left, seek.Width))) {
    ui::SSCommand& button = Tabl.LoadOnce(element);
    button.SetTop(place.Top);
    button.SetLeft(place.Left);
    button.SetCaption(captions[static_cast<std::size_t>(element)]);
    button.SetVisible(true);
  }
}

void QueryN::PlaceFields() {
  bool threeColumns = false;
  for (std::size_t page = 0; page < FieldLists.Pages().size(); ++page) {
    const ElementPage& buttons = FieldButtons.Pages()[page];
    const ElementPage& lists = FieldLists.Pages()[page];
    const std::vector<FieldPlace> places = FieldPlaces(static_cast<std::size_t>(lists.Count()), ListWidth);
    threeColumns = threeColumns || lists.Count() > inTwoColumns;
    for (std::int32_t n = 0; n < lists.Count(); ++n) {
      const FieldPlace& place = places[static_cast<std::size_t>(n)];
      ui::SSCommand& button = butField[buttons.At(n).Index()];
      button.SetTop(place.Button.Top);
      button.SetLeft(place.Button.Left);
      ConditionList& list = lstElement[lists.At(n).Index()];
      list.SetPlace({.Left = place.List.Left,
                     .Top = place.List.Top,
                     .Width = place.ListWidth,
                     .Height = list.Height()});
    }
  }
  if (threeColumns) SetInnerSize(threeColumnsWidth, InnerHeight);
}

void QueryN::LoadQueries() {
  for (const QString& name : FillQueryList(Global().File(), Global().UserName)) cmdQuery->AddItem(name);
  cmdQuery->InsertItem(0, strings::query::All);
  cmdQuery->SetListIndex(0);
}

void QueryN::ShowPage(int page) {
  FieldButtons.HideAll();
  FieldLists.HideAll();
  FieldLists.Show(page);
  FieldButtons.Show(page);
  m_page = page;
}

void QueryN::SetColorB(int index) { Tabl[index].SetForeColor(ui::Role::Red); }

std::optional<QString> QueryN::BaseQuery() const {
  return cmdQuery->ListIndex() < 1 ? std::nullopt : std::optional(cmdQuery->Text());
}

QueryModel QueryN::Model() const {
  QueryModel query{.Pages = {}, .BaseQuery = BaseQuery(), .UserName = Global().UserName};
  for (std::size_t page = 0; page < query.Pages.size(); ++page) {
    const ElementPage& lists = FieldLists.Pages()[page];
    for (std::int32_t n = 0; n < lists.Count(); ++n) {
      const std::int32_t index = lists.At(n).Index();
      const ConditionList& list = lstElement[index];
      if (list.ListCount() == 0) continue;
      const QueryFields::Entry& entry = m_fields[static_cast<std::size_t>(index)];
      QueryField field{.Name = entry.Caption, .Kind = entry.Kind, .Lines = {}};
      for (int line = 0; line < list.ListCount(); ++line) field.Lines += list.List(line);
      query.Pages[page].push_back(std::move(field));
    }
  }
  return query;
}

void QueryN::TablClick(int index) {
  Trap([this, index] {
    ShowPage(index + 1);
    ui::MarkPageButton(Tabl, index, ui::Role::Blue);
  });
}

void QueryN::StepPage(int direction) {
  const std::optional<int> next = ui::NextPageButton(Tabl, m_page - 1, direction);
  if (!next) return;
  const bool onField = (butField.Widgets() + lstElement.Widgets()).contains(focusWidget());
  TablClick(*next);
  if (onField) FieldButtons.SetFirst(m_page);
}

void QueryN::butFieldClick(int index) {
  Trap([this, index] {
    const QueryFields::Entry& field = m_fields[static_cast<std::size_t>(index)];
    if (!field.Kind) return;
    ConditionList& list = lstElement[index];
    switch (*field.Kind) {
      case FieldKind::Text:
        return Pick(new SelectQ(list, field.Caption));
      case FieldKind::Number: {
        auto* picker = new frmSelNum(list);
        picker->lblName[0].SetCaption(field.Caption);
        picker->lblName[1].SetCaption(field.Caption);
        return Pick(picker);
      }
      case FieldKind::YesNo:
        return Pick(new frmBoolSel(list, field.Caption));
      case FieldKind::Date:
        // There is no dialog for dates.
        return;
    }
  });
}

void QueryN::EditDataClick() {
  Trap([this] {
    const QueryModel query = Model();
    const QString where = optAnd[0].Value() ? BuildWhereAnd(query) : BuildWhereOr(query);
    auto& chooser = ui::Default<SelectFields>();
    if (!chooser.IsFilled()) {
      // The conditions stand here alone: they stay when there is nothing to choose from.
      chooser.Unload();
      return;
    }
    if (query.BaseQuery) chooser.SetBaseQuery(*query.BaseQuery);
    Unload();
    chooser.SetWhereText(where);
    chooser.Show(ui::ShowMode::Modal);
  });
}

void QueryN::CancelDataClick() {
  Trap([this] {
    // Cancel means to start again.
    Unload();
    ui::Default<QueryN>().Show();
  });
}

}  // namespace velmora
