// SPDX-License-Identifier: MIT
#include "cardfile/CreatTable.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "frame/Frame.h"
#include "resources/strings.h"

#include <QShortcut>

#include <utility>

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
constexpr int wideBox = 3245 + 1400 + kindWidth - secondEdge;
constexpr int lastEdge = thirdColumn + 1400 + kindWidth;

constexpr int mainTop = 180;
constexpr int pageTop = 690;
constexpr int upperLine = 1215;
constexpr int lowerLine = 3885;
constexpr int buttonTop = 3990;
constexpr int buttonHeight = 315;

constexpr int pageLabelWidth = 540;
constexpr int pageNumberWidth = 420;
constexpr int countButtonWidth = 2025;
constexpr int countWidth = 420;
constexpr int spinWidth = 315;
constexpr int spinHeight = 435;
constexpr int outlineWidth = 15;
constexpr int pageButtonWidth = 440;
constexpr int pageButtonStep = 473;
constexpr int commandWidth = 900;
constexpr int commandStep = 1000;

constexpr int helpTopic = 113;

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
  SetupKeys();
  SetInnerSize(innerWidth, innerHeight);
}

ui::Label* CreatTable::MakeLabel(const QString& name, const QString& caption, int top, int width) {
  auto* label = new ui::Label(this);
  label->SetName(name);
  label->SetCaption(caption);
  label->SetPlace({.Left = firstColumn, .Top = top, .Width = width, .Height = lineHeight});
  return label;
}

void CreatTable::SetupMainName() {
  MakeLabel(u"Label1"_s, strings::wizard::MainField, mainTop, nameWidth);
  MainName = new ui::TextBox(this);
  MainName->SetName(u"MainName"_s);
  MainName->setToolTip(strings::wizard::MainNameTip);
  MainName->setAccessibleName(strings::wizard::MainField);
  MainName->SetPlace({.Left = secondEdge, .Top = mainTop, .Width = wideBox, .Height = lineHeight});
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
  MakeLabel(u"lblPage"_s, strings::wizard::CurrentPage, pageTop, pageLabelWidth);
  lblCurPage = new ui::SSPanel(this);
  lblCurPage->SetName(u"lblCurPage"_s);
  lblCurPage->setAlignment(Qt::AlignCenter);
  lblCurPage->SetPlace(
      {.Left = firstColumn + pageLabelWidth, .Top = pageTop, .Width = pageNumberWidth, .Height = lineHeight});
  for (const int top : {upperLine, lowerLine}) {
    auto* line = new ui::Line(this);
    line->SetName(top == upperLine ? u"Line1"_s : u"Line2"_s);
    line->SetPlace({.Left = firstColumn, .Top = top, .Width = lastEdge - firstColumn, .Height = 30});
  }
}

void CreatTable::SetupCount() {
  cmdChangeNumF = new ui::SSCommand(this);
  cmdChangeNumF->SetName(u"cmdChangeNumF"_s);
  cmdChangeNumF->SetCaption(strings::wizard::ChangeCount);
  cmdChangeNumF->setToolTip(strings::wizard::ChangeCountTip);
  cmdChangeNumF->SetPlace(
      {.Left = thirdColumn, .Top = pageTop - 15, .Width = countButtonWidth, .Height = buttonHeight});
  connect(cmdChangeNumF, &ui::SSCommand::Click, this, &CreatTable::ChangeCount);

  const int spinLeft = lastEdge - spinWidth;
  txtScrol = new ui::TextBox(this);
  txtScrol->SetName(u"txtScrol"_s);
  txtScrol->SetLocked(true);
  txtScrol->setAlignment(Qt::AlignRight);
  txtScrol->setToolTip(strings::wizard::FieldCountTip);
  txtScrol->setAccessibleName(strings::wizard::FieldCount);
  txtScrol->SetPlace(
      {.Left = spinLeft - countWidth - 15, .Top = pageTop, .Width = countWidth, .Height = lineHeight});
  // Whoever clicks it lands on the scroll bar; by keys it would only be a step on the way back from there.
  txtScrol->setFocusPolicy(Qt::ClickFocus);
  connect(txtScrol, &ui::TextBox::GotFocus, this, [this] { VScroll1->SetFocus(); });

  // A scroll bar has no outline of its own: it counts on the window that it scrolls.
  const ui::Place spin{.Left = spinLeft,
                       .Top = pageTop - (spinHeight - lineHeight) / 2,
                       .Width = spinWidth,
                       .Height = spinHeight};
  auto* outline = new ui::Label(this);
  outline->SetName(u"lblScroll"_s);
  outline->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  outline->SetPlace(spin);
  VScroll1 = new ui::ScrollSpin(this);
  VScroll1->SetName(u"VScroll1"_s);
  VScroll1->setAccessibleName(strings::wizard::FieldCount);
  VScroll1->SetRange(0, MaxFieldsOnPage);
  VScroll1->SetPlace({.Left = spin.Left + outlineWidth,
                      .Top = spin.Top + outlineWidth,
                      .Width = spin.Width - 2 * outlineWidth,
                      .Height = spin.Height - 2 * outlineWidth});
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
  MakeLabel(u"lblPages"_s, strings::wizard::Pages, buttonTop, nameWidth);
  cmdPage.ForEach([](ui::SSCommand& button) {
    button.SetLeft(secondEdge + button.Index() * pageButtonStep);
    button.SetVisible(true);
  });
}

ui::SSCommand* CreatTable::MakeCommand(const QString& name, const QString& caption, int left,
                                       const QString& tip) {
  ui::SSCommand* button = ui::NewCommand(this, name, caption, tip);
  button->SetPlace({.Left = left, .Top = buttonTop, .Width = commandWidth, .Height = buttonHeight});
  return button;
}

void CreatTable::SetupCommands() {
  CreateData = MakeCommand(u"CreateData"_s, strings::Ok, thirdColumn, strings::wizard::OkTip);
  CancelData = MakeCommand(u"CancelData"_s, strings::Cancel, thirdColumn + commandStep, strings::ClickToExit);
  CmdHelp = MakeCommand(u"CmdHelp"_s, strings::Help, thirdColumn + 2 * commandStep, {});
  connect(CreateData, &ui::SSCommand::Click, this, &CreatTable::Confirm);
  connect(CancelData, &ui::SSCommand::Click, this, [this] { Unload(); });
  connect(CmdHelp, &ui::SSCommand::Click, this, [] { Frame::Main().ShowHelpTopic(helpTopic); });
}

void CreatTable::SetupKeys() {
  for (const auto& [key, direction] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, direction = direction] { StepPage(direction); });
  }
}

void CreatTable::SetupTabOrder() {
  QList<QWidget*> chain{MainName};
  for (std::size_t page = 0; page < TextArray.Pages().size(); ++page) {
    for (const ui::Element* row : TextArray.Pages()[page]) {
      chain << &TextIn[row->Index()] << &lstTypeField[row->Index()];
    }
  }
  txtNamePage.ForEach([&chain](ui::TextBox& title) { chain << &title; });
  chain << VScroll1 << cmdChangeNumF;
  cmdPage.ForEach([&chain](ui::SSCommand& button) { chain << &button; });
  chain << CreateData << CancelData << CmdHelp;
  for (qsizetype i = 1; i < chain.size(); ++i) setTabOrder(chain.at(i - 1), chain.at(i));
}

}  // namespace velmora
