// SPDX-License-Identifier: MIT
#include "cardfile/fEditLab.h"
#include "forms/ComboBox.h"
#include "forms/LeaveCheck.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/NamedPlaces.h"
#include "forms/TabChain.h"
#include "resources/strings.h"

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::fieldeditor;

namespace {

constexpr int lineHeight = 285;
constexpr int buttonHeight = 315;
constexpr int rowWidth = 2750;

// What stands above the rows keeps to their columns.
constexpr int firstColumn = EditorGrid.Lefts[0];
constexpr int thirdColumn = EditorGrid.Lefts[2];
constexpr int boxLeft = 1175;
constexpr int buttonLeft = 5010;
constexpr int buttonWidth = 1000;
constexpr int newTop = 180;
constexpr int pageTop = 750;

constexpr std::array places{
    ui::NamedPlace{.Name = u"lblNew", .Left = firstColumn, .Top = newTop, .Width = 990, .Height = lineHeight},
    ui::NamedPlace{.Name = u"NewField", .Left = boxLeft, .Top = newTop, .Width = 2340, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lstType", .Left = 3585, .Top = newTop, .Width = 1350, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"cmdAdd", .Left = buttonLeft, .Top = 165, .Width = buttonWidth, .Height = buttonHeight},
    ui::NamedPlace{
        .Name = u"lblPage", .Left = firstColumn, .Top = pageTop, .Width = 540, .Height = lineHeight},
    ui::NamedPlace{.Name = u"lblCurPage", .Left = 675, .Top = pageTop, .Width = 420, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"cmdNamePage", .Left = buttonLeft, .Top = 735, .Width = buttonWidth, .Height = buttonHeight},
    ui::NamedPlace{.Name = u"lstDelName", .Left = thirdColumn, .Top = 60, .Width = 1750, .Height = 1215},
    ui::NamedPlace{.Name = u"cmdDel", .Left = 8355, .Top = 165, .Width = 930, .Height = buttonHeight},
    ui::NamedPlace{.Name = u"Line1", .Left = 45, .Top = 1320, .Width = 9300, .Height = 30},
};

constexpr FieldPagesDesign design{
    .Screen = u"fEditLab",
    .Title = texts::Title,
    .OkTip = texts::OkTip,
    .PageNameTip = texts::PageNameTip,
    .PageTips = texts::PageTips,
    .Grid = EditorGrid,
    .TitleBox = {.Left = boxLeft, .Top = pageTop, .Width = 3760, .Height = lineHeight}};

}  // namespace

fEditLab::fEditLab()
    : FieldPages(design), TextIn(this, u"TextIn"_s, [this](ui::TextBox& box) { DressName(box); }) {
  SetupNewField();
  SetupList();
  SetupPageTitle();
  SetupCommands();
  ui::PlaceControls(*this, places);
}

void fEditLab::SetupNewField() {
  NewField = ui::NewControl<ui::TextBox>(this, u"NewField"_s, {.Tip = texts::NewNameTip});
  ui::NewLabel(this, u"lblNew"_s, texts::NewField);
  NewField->setAccessibleName(texts::NewField);
  ui::CheckOnLeave(NewField, [this] { return CheckNewField(); });

  lstType = ui::NewControl<ui::ComboBox>(this, u"lstType"_s,
                                         {.Tip = texts::KindTip, .Spoken = strings::fieldpages::FieldType});
  lstType->SetMode(ui::ComboMode::DropDownList);
  connect(lstType, &ui::ComboBox::Click, this, &fEditLab::TellFault);

  cmdAdd = ui::NewCommand(this, u"cmdAdd"_s, texts::Add, texts::AddTip);
  connect(cmdAdd, &ui::SSCommand::Click, this, &fEditLab::AddClick);
}

void fEditLab::SetupList() {
  lstDelName = ui::NewControl<ui::ListBox>(this, u"lstDelName"_s, {.Spoken = texts::FieldsOfPage});
  cmdDel = ui::NewCommand(this, u"cmdDel"_s, strings::Delete, texts::DeleteTip);
  connect(cmdDel, &ui::SSCommand::Click, this, &fEditLab::DeleteClick);
}

void fEditLab::SetupPageTitle() {
  cmdNamePage = ui::NewCommand(this, u"cmdNamePage"_s, texts::Apply, texts::ApplyTip);
  connect(cmdNamePage, &ui::SSCommand::Click, this, &fEditLab::ApplyClick);
}

void fEditLab::SetupCommands() {
  connect(CreateData, &ui::SSCommand::Click, this, &fEditLab::Leave);
  connect(CancelData, &ui::SSCommand::Click, this, &fEditLab::Leave);
}

void fEditLab::DressName(ui::TextBox& box) {
  DressNameBox(box);
  box.SetWidth(rowWidth);
  box.SetLocked(true);
  // Whoever clicks it lands on the buttons of the pages; by keys it would only be a step on the way there.
  box.setFocusPolicy(Qt::ClickFocus);
  connect(&box, &ui::TextBox::GotFocus, this, [this] { cmdPage[0].SetFocus(); });
}

void fEditLab::SetupTabOrder() {
  QList<QWidget*> chain{NewField, lstType, cmdAdd};
  chain += txtNamePage.Widgets();
  chain << cmdNamePage << lstDelName << cmdDel;
  ui::ChainTabStops(chain << LastStops());
}

}  // namespace velmora
