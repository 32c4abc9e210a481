// SPDX-License-Identifier: MIT
#include "cardfile/CreatTable.h"

#include "base/system/Failures.h"
#include "cardfile/MakeCardFile.h"
#include "cardfile/NameRules.h"
#include "cardfile/WizardRows.h"
#include "engine/DBEngine.h"
#include "forms/MsgBox.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int kindOffset = 1400;
// The scroll bar runs against the count: its upper end stands for the full page.
constexpr int fullPage = MaxFieldsOnPage;

ui::Message Info(const QString& text) {
  return {.Text = text, .Title = strings::InfoTitle, .Icon = ui::MsgIcon::Information};
}

}  // namespace

void CreatTable::OnLoad() {
  ResLoader();
  LoadPages();
  NextIndex = 1;
  TextArray.Add(1, TextIn[0]);
  KindArray.Add(1, lstTypeField[0]);
  PlaceRow(0, 1);
  CurrentPage = 1;
  lblCurPage->SetCaption(QString::number(CurrentPage));
  TitleViewPage(CurrentPage);
  ColorPageButtons();
  SetupTabOrder();
  MainName->SetFocus();
}

void CreatTable::OnActivate() {
  SetCount(1);
  ShowRows(1);
}

void CreatTable::OnUnload() {
  KindArray.ClearAll();
  FieldPages::OnUnload();
}

void CreatTable::SetCount(int count) {
  VScroll1->SetValue(fullPage - count);
  txtScrol->SetText(QString::number(count));
}

void CreatTable::ShowRows(int page) {
  TextArray.HideAll();
  KindArray.HideAll();
  TextArray.Show(page);
  KindArray.Show(page);
}

void CreatTable::ChangeCount() {
  const int onPage = TextArray.GetNum(CurrentPage);
  if (TextArray.GetCount() > MaxFields || onPage > MaxFieldsOnPage) return;
  const int count = GrantedFields(fullPage - VScroll1->Value(), CurrentPage, onPage, TextArray.GetCount());
  SetCount(count);
  if (count == onPage) return;
  for (int more = count; more < onPage; ++more) {
    TextArray.Remove(CurrentPage);
    KindArray.Remove(CurrentPage);
  }
  for (int less = onPage; less < count; ++less) AddRow();
  // Another page's rows may be in view, when the screen came back to the front meanwhile.
  ShowRows(CurrentPage);
  SetupTabOrder();
}

void CreatTable::AddRow() {
  ui::TextBox& name = TextIn.Load(NextIndex);
  ui::ComboBox& kind = lstTypeField.Load(NextIndex);
  TextArray.Add(CurrentPage, name);
  KindArray.Add(CurrentPage, kind);
  SetPosition(kind, CurrentPage);
  kind.SetLeft(kind.Left() + kindOffset);
  SetPosition(name, CurrentPage);
  ++NextIndex;
}

void CreatTable::PlaceRow(int index, int row) {
  const RowPlace place = PlaceOfRow(row);
  TextIn[index].SetTop(place.Top);
  TextIn[index].SetLeft(place.Left);
  lstTypeField[index].SetTop(place.Top);
  lstTypeField[index].SetLeft(place.Left + kindOffset);
}

void CreatTable::ChoosePage(int page) {
  CurrentPage = page;
  TitleViewPage(CurrentPage);
  ShowRows(CurrentPage);
  SetCount(TextArray.GetNum(CurrentPage));
  lblCurPage->SetCaption(QString::number(CurrentPage));
  ColorPageButtons();
}

void CreatTable::StepPage(int direction) {
  QWidget* focus = focusWidget();
  const int before = CurrentPage;
  const bool onTitle = focus == &PageTitleBox();
  const bool onRow = (TextIn.Widgets() + lstTypeField.Widgets()).contains(focus);
  FieldPages::StepPage(direction);
  if (CurrentPage == before) return;
  if (onRow && TextArray.GetNum(CurrentPage) > 0) {
    TextArray.SetFirst(CurrentPage);
  } else if (onRow || onTitle) {
    PageTitleBox().SetFocus();
  }
}

void CreatTable::FocusFirstField() {
  if (!TextIn[0].Visible()) ChoosePage(1);
  TextIn[0].SetFocus();
}

QStringList CreatTable::FieldNames(const ui::TextBox* except) const {
  QStringList names;
  TextIn.ForEach([&](const ui::TextBox& box) {
    if (&box != except && !box.Text().isEmpty()) names.append(box.Text());
  });
  return names;
}

QWidget* CreatTable::CheckMain() {
  return Outcome(CheckMainName(MainName->Text(), FieldNames(nullptr)), *MainName);
}

QWidget* CreatTable::CheckField(ui::TextBox& box) {
  return Outcome(CheckFieldName(box.Text(), MainName->Text(), FieldNames(&box)), box);
}

bool CreatTable::HasNeededNames() {
  if (MainName->Text().trimmed().isEmpty()) {
    ui::MsgBox(Info(strings::EnterMainFieldName));
    MainName->SetFocus();
    return false;
  }
  if (TextIn[0].Text().trimmed().isEmpty()) {
    ui::MsgBox(Info(strings::wizard::EnterFirstFieldName));
    FocusFirstField();
    return false;
  }
  return true;
}

void CreatTable::Confirm() {
  if (!HasNeededNames()) return;
  // What was typed on a card goes into the file that the card is of, before another one takes its place.
  if (!Frame::Main().CloseCardScreens()) return;
  ClearClean();
  Hide();
  Trap([this] { MakeFile(); });
}

void CreatTable::ClearClean() {
  for (int page = 1; page <= MaxPages; ++page) {
    ElementPage& names = TextArray.Pages()[static_cast<std::size_t>(page - 1)];
    ElementPage& kinds = KindArray.Pages()[static_cast<std::size_t>(page - 1)];
    for (int position = 0; position < names.Count();) {
      const int index = names.At(position).Index();
      if (index == 0 || !TextIn[index].Text().trimmed().isEmpty()) {
        // What stays closes up, so that the rows are still in their places when the file could not be made.
        PlaceRow(index, ++position);
        continue;
      }
      names.Remove(QString::number(index));
      kinds.Remove(QString::number(index));
      TextIn.Unload(index);
      lstTypeField.Unload(index);
    }
  }
}

CardDesign CreatTable::Design() const {
  CardDesign design{.MainField = MainName->Text(), .Pages = {}};
  for (std::size_t page = 0; page < design.Pages.size(); ++page) {
    design.Pages[page].Title = txtNamePage[static_cast<int>(page)].Text();
    for (const ui::Element* row : TextArray.Pages()[page]) {
      const int index = row->Index();
      design.Pages[page].Fields.push_back(
          {.Name = TextIn[index].Text(), .Kind = static_cast<FieldKind>(lstTypeField[index].ListIndex())});
    }
  }
  return design;
}

void CreatTable::MakeFile() {
  const QString path = NewFileName;
  const QString title = NewFileTitle;
  MakeCardFile(path, Design());
  Frame& frame = Frame::Main();
  frame.UnloadOtherForms();
  Session& session = Global();
  session.File().Close();
  session.CardDb = session.DBEngine().OpenDatabase(path);
  session.FileTitle = title;
  session.FilePath = path;
  frame.SetCaption(session.FilePath);
  frame.BlankCard();
  session.NoFile = False;
  frame.NewCard();
  session.CurCard = 1;
  frame.RememberFile();
}

}  // namespace velmora
