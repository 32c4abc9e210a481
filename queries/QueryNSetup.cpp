// SPDX-License-Identifier: MIT
#include "cardfile/PagePlan.h"
#include "forms/Makers.h"
#include "forms/NamedPlaces.h"
#include "forms/PageButtons.h"
#include "forms/TabChain.h"
#include "frame/Frame.h"
#include "queries/QueryN.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QList>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int innerWidth = 9450;
constexpr int lineHeight = 285;
constexpr int fieldButtonWidth = 1200;

constexpr std::array places{
    ui::NamedPlace{.Name = u"optAnd(0)", .Left = 255, .Top = 60, .Width = 285, .Height = lineHeight},
    ui::NamedPlace{.Name = u"Label1", .Left = 540, .Top = 60, .Width = 2100, .Height = lineHeight},
    ui::NamedPlace{.Name = u"optAnd(1)", .Left = 255, .Top = 360, .Width = 285, .Height = lineHeight},
    ui::NamedPlace{.Name = u"Label2", .Left = 540, .Top = 360, .Width = 2100, .Height = lineHeight},
    ui::NamedPlace{.Name = u"cmdQuery", .Left = 255, .Top = 720, .Width = 3120, .Height = 315},
    ui::NamedPlace{.Name = u"Label4", .Left = 255, .Top = 1140, .Width = 3120, .Height = lineHeight},
    ui::NamedPlace{.Name = u"EditData", .Left = 255, .Top = 4005, .Width = 1095, .Height = 315},
    ui::NamedPlace{.Name = u"CancelData", .Left = 1455, .Top = 4005, .Width = 1095, .Height = 315},
    ui::NamedPlace{.Name = u"CmdHelp", .Left = 2655, .Top = 4005, .Width = 1095, .Height = 315},
};

}  // namespace

QueryN::QueryN()
    : Form(u"QueryN"_s, strings::query::Title),
      Tabl(this, u"Tabl"_s, [this](ui::SSCommand& button) { DressPageButton(button); }),
      butField(this, u"butField"_s, [this](ui::SSCommand& button) { DressFieldButton(button); }),
      lstElement(this, u"lstElement"_s, [this](ConditionList& list) { DressList(list); }),
      optAnd(this, u"optAnd"_s) {
  SetupKind();
  SetupBase();
  SetupCommands();
  ui::AddPageKeys(this, [this](int direction) { StepPage(direction); });
  ui::PlaceControls(*this, places);
  SetInnerSize(innerWidth, InnerHeight);
}

void QueryN::DressPageButton(ui::SSCommand& button) {
  button.SetPlace({.Left = 0, .Top = 0, .Width = plan::PageButtonWidth, .Height = plan::PageButtonHeight});
  button.setToolTip(strings::query::PageTip);
  button.SetVisible(false);
  connect(&button, &ui::SSCommand::Click, this, [this, index = button.Index()] { TablClick(index); });
}

void QueryN::DressFieldButton(ui::SSCommand& button) {
  button.SetPlace({.Left = 0, .Top = 0, .Width = fieldButtonWidth, .Height = lineHeight});
  button.setToolTip(strings::query::FieldTip);
  button.SetVisible(false);
  connect(&button, &ui::SSCommand::Click, this, [this, index = button.Index()] { butFieldClick(index); });
}

void QueryN::DressList(ConditionList& list) {
  list.SetPlace({.Left = 0, .Top = 0, .Width = ListWidth, .Height = lineHeight});
  list.setToolTip(strings::query::ListTip);
  list.SetVisible(false);
}

void QueryN::SetupKind() {
  const std::array<strings::Text, 2> kinds{strings::query::AndType, strings::query::OrType};
  for (int index = 0; index < static_cast<int>(kinds.size()); ++index) {
    const strings::Text& kind = kinds[static_cast<std::size_t>(index)];
    ui::OptionButton& option = optAnd.LoadOnce(index);
    option.SetVisible(true);
    option.setAccessibleName(kind);
    connect(ui::NewLabel(this, u"Label%1"_s.arg(index + 1), kind), &ui::Label::Click, &option, [&option] {
      option.SetFocus();
      option.SetValue(true);
    });
  }
  optAnd[0].SetValue(true);
}

void QueryN::SetupBase() {
  cmdQuery = ui::NewControl<ui::ComboBox>(
      this, u"cmdQuery"_s, {.Tip = strings::query::BaseTip, .Spoken = strings::query::SavedQuery});
  cmdQuery->SetMode(ui::ComboMode::DropDownList);
  ui::NewLabel(this, u"Label4"_s, strings::query::DataHeading);
}

void QueryN::SetupCommands() {
  EditData = ui::NewCommand(this, u"EditData"_s, strings::Ok, strings::query::OkTip);
  CancelData = ui::NewCommand(this, u"CancelData"_s, strings::Cancel, strings::query::CancelTip);
  SetHelpTopic(topics::Queries);
  CmdHelp = ui::NewCommand(this, u"CmdHelp"_s, strings::Help, strings::query::HelpTip);
  connect(EditData, &ui::SSCommand::Click, this, &QueryN::EditDataClick);
  connect(CancelData, &ui::SSCommand::Click, this, &QueryN::CancelDataClick);
  connect(CmdHelp, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
}

void QueryN::SetupTabOrder() {
  QList<QWidget*> chain = optAnd.Widgets() + QList<QWidget*>{cmdQuery} + Tabl.Widgets();
  butField.ForEach(
      [this, &chain](ui::SSCommand& button) { chain << &button << &lstElement[button.Index()]; });
  ui::ChainTabStops(chain << EditData << CancelData << CmdHelp);
}

}  // namespace velmora
