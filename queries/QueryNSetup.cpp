// SPDX-License-Identifier: MIT
#include "forms/Makers.h"
#include "frame/Frame.h"
#include "queries/QueryN.h"
#include "resources/strings.h"

#include <QShortcut>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int innerWidth = 9450;
constexpr int lineHeight = 285;
constexpr int pageButtonWidth = 1000;
constexpr int pageButtonHeight = 255;
constexpr int fieldButtonWidth = 1200;

constexpr int leftEdge = 255;
constexpr int andTop = 60;
constexpr int orTop = 360;
constexpr int optionWidth = 285;
constexpr int optionLabelWidth = 2100;
constexpr int baseTop = 720;
constexpr int baseWidth = 3120;
constexpr int headingTop = 1140;
constexpr int headingWidth = 3120;

constexpr int commandTop = 4005;
constexpr int commandWidth = 1095;
constexpr int commandHeight = 315;
constexpr int commandStep = 1200;

constexpr int helpTopic = 122;

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
  SetupKeys();
  SetInnerSize(innerWidth, InnerHeight);
}

ui::Label* QueryN::MakeLabel(const QString& name, const QString& caption, const ui::Place& place) {
  auto* label = new ui::Label(this);
  label->SetName(name);
  label->SetCaption(caption);
  label->SetPlace(place);
  return label;
}

void QueryN::DressPageButton(ui::SSCommand& button) {
  button.SetPlace({.Left = 0, .Top = 0, .Width = pageButtonWidth, .Height = pageButtonHeight});
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
  struct Kind {
    int Top;
    const strings::Text& Caption;
  };
  const std::array<Kind, 2> kinds{{{andTop, strings::query::AndType}, {orTop, strings::query::OrType}}};
  for (int index = 0; index < static_cast<int>(kinds.size()); ++index) {
    const Kind& kind = kinds[static_cast<std::size_t>(index)];
    ui::OptionButton& option = index == 0 ? optAnd[0] : optAnd.Load(index);
    option.SetVisible(true);
    option.setAccessibleName(kind.Caption);
    option.SetPlace({.Left = leftEdge, .Top = kind.Top, .Width = optionWidth, .Height = lineHeight});
    const ui::Label* label = MakeLabel(
        u"Label%1"_s.arg(index + 1), kind.Caption,
        {.Left = leftEdge + optionWidth, .Top = kind.Top, .Width = optionLabelWidth, .Height = lineHeight});
    connect(label, &ui::Label::Click, &option, [&option] {
      option.SetFocus();
      option.SetValue(true);
    });
  }
  optAnd[0].SetValue(true);
}

void QueryN::SetupBase() {
  cmdQuery = new ui::ComboBox(this);
  cmdQuery->SetName(u"cmdQuery"_s);
  cmdQuery->SetMode(ui::ComboMode::DropDownList);
  cmdQuery->setToolTip(strings::query::BaseTip);
  cmdQuery->setAccessibleName(strings::query::SavedQuery);
  cmdQuery->SetPlace({.Left = leftEdge, .Top = baseTop, .Width = baseWidth, .Height = commandHeight});
  MakeLabel(u"Label4"_s, strings::query::DataHeading,
            {.Left = leftEdge, .Top = headingTop, .Width = headingWidth, .Height = lineHeight});
}

ui::SSCommand* QueryN::MakeCommand(const QString& name, const QString& caption, int left,
                                   const QString& tip) {
  ui::SSCommand* button = ui::NewCommand(this, name, caption, tip);
  button->SetPlace({.Left = left, .Top = commandTop, .Width = commandWidth, .Height = commandHeight});
  return button;
}

void QueryN::SetupCommands() {
  EditData = MakeCommand(u"EditData"_s, strings::Ok, leftEdge, strings::query::OkTip);
  CancelData =
      MakeCommand(u"CancelData"_s, strings::Cancel, leftEdge + commandStep, strings::query::CancelTip);
  CmdHelp = MakeCommand(u"CmdHelp"_s, strings::Help, leftEdge + 2 * commandStep, strings::query::HelpTip);
  connect(EditData, &ui::SSCommand::Click, this, &QueryN::EditDataClick);
  connect(CancelData, &ui::SSCommand::Click, this, &QueryN::CancelDataClick);
  connect(CmdHelp, &ui::SSCommand::Click, this, [] { Frame::Main().ShowHelpTopic(helpTopic); });
}

void QueryN::SetupKeys() {
  for (const auto& [key, direction] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, direction = direction] { StepPage(direction); });
  }
}

void QueryN::SetupTabOrder() {
  QList<QWidget*> chain{&optAnd[0], &optAnd[1], cmdQuery};
  Tabl.ForEach([&chain](ui::SSCommand& button) { chain += &button; });
  butField.ForEach(
      [this, &chain](ui::SSCommand& button) { chain << &button << &lstElement[button.Index()]; });
  chain << EditData << CancelData << CmdHelp;
  for (qsizetype i = 1; i < chain.size(); ++i) setTabOrder(chain[i - 1], chain[i]);
}

}  // namespace velmora
