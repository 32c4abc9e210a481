// SPDX-License-Identifier: MIT
#include "cardfile/FieldPages.h"

#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/NamedPlaces.h"
#include "forms/PageButtons.h"
#include "frame/Frame.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int innerWidth = 9390;
constexpr int innerHeight = 4395;
constexpr int lineHeight = 285;
constexpr int nameWidth = 1350;
constexpr int buttonTop = 3990;
constexpr int buttonHeight = 315;
constexpr int commandWidth = 900;
constexpr int pageButtonLeft = 1445;
constexpr int pageButtonWidth = 440;
constexpr int pageButtonStep = 473;

constexpr std::array places{
    ui::NamedPlace{.Name = u"Line2", .Left = 45, .Top = 3885, .Width = 9300, .Height = 30},
    ui::NamedPlace{.Name = u"lblPages", .Left = 45, .Top = buttonTop, .Width = 1350, .Height = lineHeight},
    ui::NamedPlace{
        .Name = u"CreateData", .Left = 6445, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight},
    ui::NamedPlace{
        .Name = u"CancelData", .Left = 7445, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight},
    ui::NamedPlace{
        .Name = u"CmdHelp", .Left = 8445, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight},
};

}  // namespace

FieldPages::FieldPages(const FieldPagesDesign& design)
    : Form(design.Screen.toString(), design.Title),
      txtNamePage(this, u"txtNamePage"_s),
      cmdPage(this, u"cmdPage"_s),
      m_design(design) {
  SetupLabels();
  SetupCommands();
  DressTitle(txtNamePage[0]);
  DressPageButton(cmdPage[0]);
  ui::AddPageKeys(this, [this](int direction) { StepPage(direction); });
  ui::PlaceControls(*this, places);
  SetInnerSize(innerWidth, innerHeight);
}

void FieldPages::SetupLabels() {
  ui::NewLabel(this, u"lblPage"_s, strings::fieldpages::CurrentPage);
  lblCurPage = ui::NewControl<ui::SSPanel>(this, u"lblCurPage"_s);
  lblCurPage->setAlignment(Qt::AlignCenter);
  for (const QString& line : {u"Line1"_s, u"Line2"_s}) (new ui::Line(this))->SetName(line);
  ui::NewLabel(this, u"lblPages"_s, strings::fieldpages::Pages);
}

void FieldPages::SetupCommands() {
  CreateData = ui::NewCommand(this, u"CreateData"_s, strings::Ok, m_design.OkTip);
  CancelData = ui::NewCommand(this, u"CancelData"_s, strings::Cancel, strings::ClickToExit);
  SetHelpTopic(topics::Design);
  CmdHelp = ui::NewCommand(this, u"CmdHelp"_s, strings::Help);
  connect(CmdHelp, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
}

void FieldPages::DressTitle(ui::TextBox& box) {
  box.setToolTip(m_design.PageNameTip);
  box.setPlaceholderText(strings::fieldpages::PageName);
  box.setAccessibleName(strings::fieldpages::PageName);
  box.SetPlace(m_design.TitleBox);
}

void FieldPages::DressPageButton(ui::SSCommand& button) {
  const int index = button.Index();
  button.SetCaption(QString::number(index + 1));
  button.setToolTip(m_design.PageTips.at(static_cast<std::size_t>(index)));
  button.SetPlace({.Left = pageButtonLeft + index * pageButtonStep,
                   .Top = buttonTop,
                   .Width = pageButtonWidth,
                   .Height = buttonHeight});
  button.SetVisible(true);
  connect(&button, &ui::SSCommand::Click, this, [this, index] { ChoosePage(index + 1); });
}

void FieldPages::DressNameBox(ui::TextBox& box) const {
  box.setToolTip(strings::fieldpages::FieldNameTip);
  box.setPlaceholderText(strings::fieldpages::FieldName);
  box.setAccessibleName(strings::fieldpages::FieldName);
  box.SetPlace({.Left = m_design.Grid.Lefts[0], .Top = 0, .Width = nameWidth, .Height = lineHeight});
}

void FieldPages::LoadPages() {
  for (int index = 1; index < MaxPages; ++index) {
    DressTitle(txtNamePage.Load(index));
    DressPageButton(cmdPage.Load(index));
  }
}

void FieldPages::OnUnload() { TextArray.ClearAll(); }

void FieldPages::ResLoader() { setWindowIcon(Frame::Main().ScreenIcon()); }

void FieldPages::SetPosition(ui::Control& control, int page) {
  const RowPlace place = PlaceOfRow(TextArray.GetNum(page));
  control.SetTop(place.Top);
  control.SetLeft(place.Left);
}

void FieldPages::StepPage(int direction) {
  const std::optional<int> next = ui::NextPageButton(cmdPage, CurrentPage - 1, direction);
  if (next) ChoosePage(*next + 1);
}

void FieldPages::TitleViewPage(int page) {
  txtNamePage.ForEach([](ui::TextBox& title) { title.SetVisible(false); });
  txtNamePage[page - 1].SetVisible(true);
}

void FieldPages::ColorPageButtons() { ui::MarkPageButton(cmdPage, CurrentPage - 1, ui::Role::Blue); }

QList<QWidget*> FieldPages::LastStops() const {
  return cmdPage.Widgets() << CreateData << CancelData << CmdHelp;
}

QWidget* FieldPages::Outcome(NameCheck found, ui::TextBox& box) {
  switch (found) {
    case NameCheck::Fine:
      return nullptr;
    case NameCheck::ForbiddenCharacter:
      ui::MsgBox(strings::ForbiddenCharacters);
      box.SelectAll();
      return &box;
    case NameCheck::CardNumberColumn:
      ui::MsgBox({.Text = strings::SelectADifferentName,
                  .Title = strings::InfoTitle,
                  .Icon = ui::MsgIcon::Information});
      box.SetText({});
      return nullptr;
    case NameCheck::Duplicate:
      ui::MsgBox(strings::FieldNameExists);
      box.SetText({});
      return &box;
  }
  return nullptr;
}

}  // namespace velmora
