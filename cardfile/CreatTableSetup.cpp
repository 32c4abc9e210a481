// SPDX-License-Identifier: MIT
#include "cardfile/CreatTable.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/NamedPlaces.h"
#include "forms/TabChain.h"
#include "resources/strings.h"

#include <QList>

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int lineHeight = 285;

// The columns of the rows: what stands above them keeps to the same edges.
constexpr int firstColumn = WizardGrid.Lefts[0];
constexpr int secondEdge = 1445;
constexpr int thirdColumn = WizardGrid.Lefts[2];
constexpr int kindWidth = 1500;
constexpr int wideBox = 4700;
constexpr int pageTop = 690;

constexpr std::array places{
    ui::NamedPlace{.Name = u"Label1", .Left = firstColumn, .Top = 180, .Width = 1350, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"MainName", .Left = secondEdge, .Top = 180, .Width = wideBox, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"lblPage", .Left = firstColumn, .Top = pageTop, .Width = 540, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lblCurPage", .Left = 585, .Top = pageTop, .Width = 420, .Height = lineHeight},
    ui::NamedPlace{.Name = u"cmdChangeNumF", .Left = thirdColumn, .Top = 675, .Width = 2025, .Height = 315},
    ui::NamedPlace{.Name = u"txtScrol", .Left = 8595, .Top = pageTop, .Width = 420, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lblScroll", .Left = 9030, .Top = 615, .Width = 315, .Height = 435},
    ui::NamedPlace{.Name = u"VScroll1", .Left = 9045, .Top = 630, .Width = 285, .Height = 405},
    ui::NamedPlace{.Name = u"Line1", .Left = firstColumn, .Top = 1215, .Width = 9300, .Height = 30},
};

constexpr FieldPagesDesign design{
    .Screen = u"CreatTable",
    .Title = strings::wizard::Title,
    .OkTip = strings::wizard::OkTip,
    .PageNameTip = strings::wizard::PageNameTip,
    .PageTips = strings::wizard::PageTips,
    .Grid = WizardGrid,
    .TitleBox = {.Left = secondEdge, .Top = pageTop, .Width = wideBox, .Height = lineHeight}};

}  // namespace

CreatTable::CreatTable()
    : FieldPages(design),
      TextIn(this, u"TextIn"_s, [this](ui::TextBox& box) { DressName(box); }),
      lstTypeField(this, u"lstTypeField"_s, [this](ui::ComboBox& list) { DressKind(list); }) {
  SetupMainName();
  SetupCount();
  connect(CreateData, &ui::SSCommand::Click, this, &CreatTable::Confirm);
  connect(CancelData, &ui::SSCommand::Click, this, [this] { Unload(); });
  ui::PlaceControls(*this, places);
}

void CreatTable::SetupMainName() {
  ui::NewLabel(this, u"Label1"_s, strings::wizard::MainField);
  MainName = ui::NewControl<ui::TextBox>(
      this, u"MainName"_s, {.Tip = strings::wizard::MainNameTip, .Spoken = strings::wizard::MainField});
  connect(MainName, &ui::TextBox::EnterPressed, this, &CreatTable::FocusFirstField);
  ui::CheckOnLeave(MainName, [this] { return CheckMain(); });
}

void CreatTable::DressName(ui::TextBox& box) {
  DressNameBox(box);
  const int index = box.Index();
  connect(&box, &ui::TextBox::EnterPressed, this, [this, index] { TextArray.SetNext(index, CurrentPage); });
  ui::CheckOnLeave(&box, [this, &box] { return CheckField(box); });
}

void CreatTable::DressKind(ui::ComboBox& list) {
  list.SetMode(ui::ComboMode::DropDownList);
  for (const strings::Text& kind : strings::Kinds) list.AddItem(kind);
  list.SetListIndex(0);
  list.setToolTip(strings::wizard::FieldTypeTip);
  list.setAccessibleName(strings::fieldpages::FieldType);
  list.SetPlace({.Left = secondEdge, .Top = 0, .Width = kindWidth, .Height = lineHeight});
}

void CreatTable::SetupCount() {
  cmdChangeNumF =
      ui::NewCommand(this, u"cmdChangeNumF"_s, strings::wizard::ChangeCount, strings::wizard::ChangeCountTip);
  connect(cmdChangeNumF, &ui::SSCommand::Click, this, &CreatTable::ChangeCount);

  txtScrol = ui::NewControl<ui::TextBox>(
      this, u"txtScrol"_s, {.Tip = strings::wizard::FieldCountTip, .Spoken = strings::wizard::FieldCount});
  txtScrol->SetLocked(true);
  txtScrol->setAlignment(Qt::AlignRight);
  // Whoever clicks it lands on the scroll bar; by keys it would only be a step on the way back from there.
  txtScrol->setFocusPolicy(Qt::ClickFocus);
  connect(txtScrol, &ui::TextBox::GotFocus, this, [this] { VScroll1->SetFocus(); });

  // A scroll bar has no outline of its own: it counts on the window that it scrolls.
  ui::NewLabel(this, u"lblScroll"_s, {})
      ->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  VScroll1 = ui::NewControl<ui::ScrollSpin>(this, u"VScroll1"_s, {.Spoken = strings::wizard::FieldCount});
  VScroll1->SetRange(0, MaxFieldsOnPage);
  connect(VScroll1, &ui::ScrollSpin::Change, this,
          [this] { txtScrol->SetText(QString::number(MaxFieldsOnPage - VScroll1->Value())); });
}

void CreatTable::SetupTabOrder() {
  QList<QWidget*> chain{MainName};
  for (const ElementPage& page : TextArray.Pages()) {
    for (const ui::Element* row : page) chain << &TextIn[row->Index()] << &lstTypeField[row->Index()];
  }
  chain += txtNamePage.Widgets();
  chain << VScroll1 << cmdChangeNumF;
  ui::ChainTabStops(chain << LastStops());
}

}  // namespace velmora
