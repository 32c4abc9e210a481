// SPDX-License-Identifier: MIT
#include "cardfile/CreatTable.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/NamedPlaces.h"
#include "forms/PageButtons.h"
#include "forms/TabChain.h"
#include "frame/Frame.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QList>

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int innerWidth = 9390;
constexpr int innerHeight = 4395;
constexpr int lineHeight = 285;

// The columns of the rows: what stands above and below them keeps to the same edges.
constexpr int firstColumn = 45;
constexpr int secondEdge = 1445;
constexpr int thirdColumn = 6445;
constexpr int nameWidth = 1350;
constexpr int kindWidth = 1500;
constexpr int wideBox = 4700;

constexpr int pageTop = 690;
constexpr int buttonTop = 3990;
constexpr int buttonHeight = 315;
constexpr int commandWidth = 900;
constexpr int pageButtonWidth = 440;
constexpr int pageButtonStep = 473;

constexpr std::array places{
    ui::NamedPlace{
        .Name = u"Label1", .Left = firstColumn, .Top = 180, .Width = nameWidth, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"MainName", .Left = secondEdge, .Top = 180, .Width = wideBox, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"lblPage", .Left = firstColumn, .Top = pageTop, .Width = 540, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lblCurPage", .Left = 585, .Top = pageTop, .Width = 420, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"cmdChangeNumF", .Left = thirdColumn, .Top = 675, .Width = 2025, .Height = buttonHeight},
    ui::NamedPlace{.Name = u"txtScrol", .Left = 8595, .Top = pageTop, .Width = 420, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lblScroll", .Left = 9030, .Top = 615, .Width = 315, .Height = 435},
    ui::NamedPlace{.Name = u"VScroll1", .Left = 9045, .Top = 630, .Width = 285, .Height = 405},
    ui::NamedPlace{.Name = u"Line1", .Left = firstColumn, .Top = 1215, .Width = 9300, .Height = 30},
    ui::NamedPlace{.Name = u"Line2", .Left = firstColumn, .Top = 3885, .Width = 9300, .Height = 30},
    ui::NamedPlace{
        .Name = u"lblPages", .Left = firstColumn, .Top = buttonTop, .Width = nameWidth, .Height = lineHeight},
    ui::NamedPlace{.Name = u"CreateData",
                   .Left = thirdColumn,
                   .Top = buttonTop,
                   .Width = commandWidth,
                   .Height = buttonHeight},
    ui::NamedPlace{
        .Name = u"CancelData", .Left = 7445, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight},
    ui::NamedPlace{
        .Name = u"CmdHelp", .Left = 8445, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight},
};

}  // namespace

CreatTable::CreatTable()
    : Form(u"CreatTable"_s, strings::wizard::Title),
      TextIn(this, u"TextIn"_s, [this](ui::TextBox& box) { DressName(box); }),
      lstTypeField(this, u"lstTypeField"_s, [this](ui::ComboBox& list) { DressKind(list); }),
      txtNamePage(this, u"txtNamePage"_s, [this](ui::TextBox& box) { DressTitle(box); }),
      cmdPage(this, u"cmdPage"_s, [this](ui::SSCommand& button) { DressPageButton(button); }) {
  SetupMainName();
  SetupPageRow();
  SetupCount();
  SetupCommands();
  ui::AddPageKeys(this, [this](int direction) { StepPage(direction); });
  ui::PlaceControls(*this, places);
  SetInnerSize(innerWidth, innerHeight);
}

void CreatTable::SetupMainName() {
  ui::NewLabel(this, u"Label1"_s, strings::wizard::MainField);
  MainName = ui::NewControl<ui::TextBox>(
      this, u"MainName"_s, {.Tip = strings::wizard::MainNameTip, .Spoken = strings::wizard::MainField});
  connect(MainName, &ui::TextBox::EnterPressed, this, &CreatTable::FocusFirstField);
  ui::CheckOnLeave(MainName, [this] { return CheckMain(); });
}

void CreatTable::DressName(ui::TextBox& box) {
  box.setToolTip(strings::wizard::FieldNameTip);
  box.setPlaceholderText(strings::wizard::FieldName);
  box.setAccessibleName(strings::wizard::FieldName);
  box.SetPlace({.Left = firstColumn, .Top = 0, .Width = nameWidth, .Height = lineHeight});
  const int index = box.Index();
  connect(&box, &ui::TextBox::EnterPressed, this, [this, index] { TextArray.SetNext(index, CurrentPage); });
  ui::CheckOnLeave(&box, [this, &box] { return CheckField(box); });
}

void CreatTable::DressKind(ui::ComboBox& list) {
  list.SetMode(ui::ComboMode::DropDownList);
  for (const strings::Text& kind : strings::Kinds) list.AddItem(kind);
  list.SetListIndex(0);
  list.setToolTip(strings::wizard::FieldTypeTip);
  list.setAccessibleName(strings::wizard::FieldType);
  list.SetPlace({.Left = secondEdge, .Top = 0, .Width = kindWidth, .Height = lineHeight});
}

void CreatTable::DressTitle(ui::TextBox& box) {
  box.setToolTip(strings::wizard::PageNameTip);
  box.setPlaceholderText(strings::wizard::PageName);
  box.setAccessibleName(strings::wizard::PageName);
  box.SetPlace({.Left = secondEdge, .Top = pageTop, .Width = wideBox, .Height = lineHeight});
}

void CreatTable::SetupPageRow() {
  ui::NewLabel(this, u"lblPage"_s, strings::wizard::CurrentPage);
  lblCurPage = ui::NewControl<ui::SSPanel>(this, u"lblCurPage"_s);
  lblCurPage->setAlignment(Qt::AlignCenter);
  for (const QString& line : {u"Line1"_s, u"Line2"_s}) (new ui::Line(this))->SetName(line);
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

void CreatTable::DressPageButton(ui::SSCommand& button) {
  const int index = button.Index();
  button.SetCaption(QString::number(index + 1));
  button.setToolTip(strings::wizard::PageTips.at(static_cast<std::size_t>(index)));
  button.SetPlace({.Left = secondEdge, .Top = buttonTop, .Width = pageButtonWidth, .Height = buttonHeight});
  connect(&button, &ui::SSCommand::Click, this, [this, index] { ChoosePage(index + 1); });
}

void CreatTable::SetupPageButtons() {
  cmdPage.ForEach([](ui::SSCommand& button) {
    button.SetLeft(secondEdge + button.Index() * pageButtonStep);
    button.SetVisible(true);
  });
}

void CreatTable::SetupCommands() {
  ui::NewLabel(this, u"lblPages"_s, strings::wizard::Pages);
  CreateData = ui::NewCommand(this, u"CreateData"_s, strings::Ok, strings::wizard::OkTip);
  CancelData = ui::NewCommand(this, u"CancelData"_s, strings::Cancel, strings::ClickToExit);
  SetHelpTopic(topics::Design);
  CmdHelp = ui::NewCommand(this, u"CmdHelp"_s, strings::Help);
  connect(CreateData, &ui::SSCommand::Click, this, &CreatTable::Confirm);
  connect(CancelData, &ui::SSCommand::Click, this, [this] { Unload(); });
  connect(CmdHelp, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
}

void CreatTable::SetupTabOrder() {
  QList<QWidget*> chain{MainName};
  for (const ElementPage& page : TextArray.Pages()) {
    for (const ui::Element* row : page) chain << &TextIn[row->Index()] << &lstTypeField[row->Index()];
  }
  chain += txtNamePage.Widgets();
  chain << VScroll1 << cmdChangeNumF;
  chain += cmdPage.Widgets();
  ui::ChainTabStops(chain << CreateData << CancelData << CmdHelp);
}

}  // namespace velmora
