// SPDX-License-Identifier: MIT
#include "cards/CardForm.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cards/CardNames.h"
#include "cards/CardPlan.h"
#include "cards/frmReminder.h"
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "frame/Session.h"
#include "resources/strings.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// Room for three columns and the row of buttons, and small enough for the editor to stand under the frame's
// strip.
constexpr int InnerWidth = 9450;
constexpr int InnerHeight = 4500;

constexpr ui::Place HelpPlace{.Left = 3460, .Top = 4140, .Width = 1095, .Height = 315};
// A field stands here only when the layout could not be finished.
constexpr ui::Place FieldPlace{
    .Left = 1215, .Top = 960, .Width = plan::FieldWidth, .Height = plan::FieldHeight};
constexpr ui::Place LabelPlace{.Left = 200, .Top = 960, .Width = 985, .Height = plan::FieldHeight};

constexpr int HelpTopic = 118;

/// The widget of a control that takes the focus.
QWidget* FocusTarget(const ui::Control& control) {
  QWidget* widget = control.Widget();
  return widget->focusProxy() != nullptr ? widget->focusProxy() : widget;
}

bool AsksForValues(const QKeyEvent& event) {
  const bool altDown = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
  return altDown || (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier);
}

}  // namespace

CardForm::CardForm(const CardFormDesign& design)
    : Form(design.Name.toString(), design.Title),
      NameLab(this, u"NameLab"_s,
              [](ui::Label& label) {
                label.SetPlace(LabelPlace);
                label.SetVisible(false);
              }),
      NameText(this, u"NameText"_s, [this](ui::TextBox& box) { SetupText(box); }),
      NameNumber(this, u"NameNumber"_s, [this](ui::MaskEdBox& box) { SetupNumber(box); }),
      NameCheck(this, u"NameCheck"_s,
                [this, &design](ui::CheckBox& box) {
                  SetupCheck(box);
                  box.setToolTip(design.CheckFieldTip);
                  box.SetPlace({.Left = FieldPlace.Left,
                                .Top = FieldPlace.Top,
                                .Width = plan::CheckWidth,
                                .Height = design.Geometry.CheckHeight});
                }),
      NameDate(this, u"NameDate"_s, [this](DateCtrl& box) { SetupDate(box); }),
      Tab(this, u"Tab"_s, [this](ui::SSCommand& button) { SetupPageButton(button); }),
      m_design(design) {
  NameNumber[0].setToolTip(design.NumberFieldTip);
  SetupHead();
  SetupComment();
  SetupButtons();
  SetupKeys();
  SetInnerSize(InnerWidth, InnerHeight);
}

CardForm::~CardForm() = default;

void CardForm::SetupHead() {
  NameCard = new ui::Label(this);
  NameCard->SetName(u"NameCard"_s);
  NameCard->SetPlace(LabelPlace);
  NameRecord = new ui::TextBox(this);
  NameRecord->SetName(u"NameRecord"_s);
  NameRecord->setToolTip(m_design.NameTip);
  NameCard->setBuddy(NameRecord);
  connect(NameRecord, &ui::TextBox::Change, this, &CardForm::MarkEdited);
  connect(NameRecord, &ui::TextBox::EnterPressed, this, [this] { FieldValues.SetFirst(CurPage); });
  ui::CheckOnLeave(NameRecord, [this] { return CheckName(); });
}

void CardForm::SetupComment() {
  DescrText = new ui::MemoBox(this);
  DescrText->SetName(u"DescrText"_s);
  DescrText->setToolTip(m_design.CommentTip);
  DescrText->setAccessibleName(strings::card::Comment);
  cmdEdUp = MakeButton(u"cmdEdUp"_s, {}, {});
  cmdEdUp->SetArrow(Qt::UpArrow);
  cmdEdUp->setAccessibleName(strings::card::EnlargeComment);
  connect(cmdEdUp, &ui::SSCommand::Click, this, [this] { Trap([this] { OpenComment(); }); });
  cmdEdDwn = MakeButton(u"cmdEdDwn"_s, {}, {});
  cmdEdDwn->SetArrow(Qt::DownArrow);
  cmdEdDwn->setAccessibleName(strings::card::ShrinkComment);
  cmdEdDwn->SetVisible(false);
  connect(cmdEdDwn, &ui::SSCommand::Click, this, [this] { Trap([this] { CloseComment(); }); });
}

void CardForm::SetupButtons() {
  EditData = MakeButton(u"EditData"_s, strings::Ok, m_design.OkTip);
  connect(EditData, &ui::SSCommand::Click, this, [this] { EditDataClick(); });
  CancelData = MakeButton(u"CancelData"_s, strings::Cancel, m_design.CancelTip);
  connect(CancelData, &ui::SSCommand::Click, this, [this] { CancelDataClick(); });
  CmdHelp = MakeButton(u"CmdHelp"_s, strings::Help, m_design.HelpTip);
  CmdHelp->SetPlace(HelpPlace);
  connect(CmdHelp, &ui::SSCommand::Click, this, [] { Frame::Main().ShowHelpTopic(HelpTopic); });
}

void CardForm::SetupKeys() {
  for (const auto& [key, direction] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, direction = direction] { StepPage(direction); });
  }
}

ui::SSCommand* CardForm::MakeButton(const QString& name, const QString& caption, const QString& tip) {
  return ui::NewCommand(this, name, caption, tip);
}

void CardForm::SetupText(ui::TextBox& box) {
  box.SetPlace(FieldPlace);
  box.SetVisible(false);
  box.installEventFilter(this);
  connect(&box, &ui::TextBox::Change, this, &CardForm::MarkEdited);
  connect(&box, &ui::TextBox::DblClick, this, [this, &box] { OpenValueList(box.Index()); });
  connect(&box, &ui::TextBox::EnterPressed, this,
          [this, &box] { FieldValues.SetNext(box.Index(), CurPage); });
  ui::CheckOnLeave(&box, [&box]() -> QWidget* { return RefusesApostrophe(box) ? &box : nullptr; });
}

void CardForm::SetupNumber(ui::MaskEdBox& box) {
  box.SetPlace(FieldPlace);
  box.SetVisible(false);
  box.SetMask(NumberMask.toString());
  connect(&box, &ui::MaskEdBox::Change, this, &CardForm::MarkEdited);
  connect(&box, &ui::MaskEdBox::EnterPressed, this,
          [this, &box] { FieldValues.SetNext(box.Index(), CurPage); });
}

void CardForm::SetupCheck(ui::CheckBox& box) {
  box.SetVisible(false);
  connect(&box, &ui::CheckBox::Click, this, &CardForm::MarkEdited);
  connect(&box, &ui::CheckBox::EnterPressed, this,
          [this, &box] { FieldValues.SetNext(box.Index(), CurPage); });
}

void CardForm::SetupDate(DateCtrl& box) {
  box.SetPlace({FieldPlace.Left, FieldPlace.Top, plan::DesignedDateWidth, FieldPlace.Height});
  box.SetVisible(false);
  connect(&box, &DateCtrl::Change, this, &CardForm::MarkEdited);
  connect(&box, &DateCtrl::Click, this, [&box] { ShowReminder(box); });
  connect(&box, &DateCtrl::EnterPressed, this, [this, &box] { FieldValues.SetNext(box.Index(), CurPage); });
}

void CardForm::SetupPageButton(ui::SSCommand& button) {
  button.SetPlace({0, 0, plan::PageButtonWidth, plan::PageButtonHeight});
  button.SetVisible(false);
  connect(&button, &ui::SSCommand::Click, this, [this, &button] { ShowPage(button.Index()); });
}

void CardForm::PlaceControls() {
  for (const ControlBox& box : m_design.Geometry.Boxes) {
    auto* control = dynamic_cast<ui::Control*>(findChild<QWidget*>(box.Name.toString()));
    Q_ASSERT(control != nullptr);
    control->SetPlace({.Left = box.Left,
                       .Top = box.Top,
                       .Width = box.Width == 0 ? control->Width() : box.Width,
                       .Height = box.Height == 0 ? control->Height() : box.Height});
  }
}

void CardForm::ResLoader() { setWindowIcon(Frame::Main().ScreenIcon()); }

void CardForm::TakePages(CardFields fields) {
  m_fields = std::move(fields);
  NameNumber.ForEach([this](ui::MaskEdBox& box) { box.setToolTip(m_design.NumberFieldTip); });
  Tab.ForEach([this](ui::SSCommand& button) { button.setToolTip(m_design.PageTip); });
  ChainTabStops();
  CurPage = 1;
  FieldLabels.HideAll();
  FieldValues.HideAll();
  FieldLabels.Show(1);
  FieldValues.Show(1);
}

void CardForm::ClearPages() {
  m_fields.clear();
  FieldLabels.ClearAll();
  FieldValues.ClearAll();
}

void CardForm::ChainTabStops() {
  QList<QWidget*> stops = FirstTabStops();
  stops += NameRecord;
  for (const auto& field : m_fields) stops += field->Control().Widget();
  stops += {DescrText, cmdEdDwn, cmdEdUp, EditData, CancelData, CmdHelp};
  Tab.ForEach([&stops](ui::SSCommand& button) { stops += &button; });
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void CardForm::ShowPage(int index) {
  FieldLabels.HideAll();
  FieldValues.HideAll();
  FieldLabels.Show(index + 1);
  FieldValues.Show(index + 1);
  CurPage = index + 1;
  Tab.ForEach([](ui::SSCommand& button) { button.SetForeColor(ui::Role::Ink); });
  ColorPageButton(index);
  AfterPageShown();
}

void CardForm::ColorPageButton(int index) { Tab[index].SetForeColor(ui::Role::Red); }

void CardForm::StepPage(int direction) {
  QList<int> pages;
  Tab.ForEach([&pages](ui::SSCommand& button) {
    if (button.Visible()) pages += button.Index();
  });
  const qsizetype next = pages.indexOf(CurPage - 1) + direction;
  if (next < 0 || next >= pages.size()) return;
  QWidget* focus = focusWidget();
  const bool onField = std::ranges::any_of(
      m_fields, [focus](const auto& field) { return FocusTarget(field->Control()) == focus; });
  ShowPage(pages[next]);
  if (onField) FieldValues.SetFirst(CurPage);
}

void CardForm::OpenComment() {
  CommentOpen = true;
  DescrText->SetTop(m_design.Geometry.CommentOpen.Top);
  DescrText->SetHeight(m_design.Geometry.CommentOpen.Height);
  // The fields stay where they are, behind it.
  DescrText->raise();
  SetFieldTabStops(false);
  AfterCommentOpened();
  const bool focused = cmdEdUp->hasFocus();
  cmdEdDwn->SetVisible(true);
  if (focused) cmdEdDwn->SetFocus();
  cmdEdUp->SetVisible(false);
}

void CardForm::CloseComment() {
  CommentOpen = false;
  DescrText->SetHeight(m_design.Geometry.CommentClosed.Height);
  DescrText->SetTop(m_design.Geometry.CommentClosed.Top);
  SetFieldTabStops(true);
  AfterCommentClosed();
  const bool focused = cmdEdDwn->hasFocus();
  cmdEdUp->SetVisible(true);
  if (focused) cmdEdUp->SetFocus();
  cmdEdDwn->SetVisible(false);
}

void CardForm::SetFieldTabStops(bool reachable) {
  for (const auto& field : m_fields)
    FocusTarget(field->Control())->setFocusPolicy(reachable ? Qt::StrongFocus : Qt::ClickFocus);
}

QString CardForm::ColumnOf(std::size_t field) const { return NameLab[static_cast<int>(field)].Caption(); }

void CardForm::StoreFields(db::Recordset& row, std::int32_t card, ReminderSave reminders) {
  for (std::size_t k = 0; k < m_fields.size(); ++k) m_fields[k]->Store(row, ColumnOf(k), card, reminders);
  if (DescrText->Text().isEmpty()) DescrText->SetText(u" "_s);
  row.Set(schema::Remarks.View(), DescrText->Text());
}

void CardForm::MarkEdited() {
  CardEdited = true;
  Global().CardChanged = True;
}

void CardForm::ClearMarks() {
  CardEdited = false;
  Global().CardChanged = False;
}

void CardForm::AskSaveChanges() {
  // Nothing to ask leaves the marks alone: CardChanged may be the other card screen's.
  if (!CardEdited) return;
  const ui::MsgAnswer answer =
      ui::MsgBox({.Text = strings::SaveChangesQuestion, .Buttons = ui::MsgButtons::YesNo});
  if (answer == ui::MsgAnswer::Yes) SaveWhenAsked();
  ClearMarks();
}

bool CardForm::RefusesApostrophe(ui::TextBox& box) {
  if (!box.Text().contains(u'\'')) return false;
  ui::MsgBox(strings::NoApostrophe);
  box.SelectAll();
  return true;
}

QWidget* CardForm::OfferSimilarNames(const QString& title, const QString& question) {
  const ui::MsgAnswer answer =
      ui::MsgBox({.Text = question, .Title = title, .Buttons = ui::MsgButtons::OkCancel});
  if (answer != ui::MsgAnswer::Ok) return nullptr;
  Trap([this] { Frame::Main().SearchSimilarNames(FirstWord(NameRecord->Text())); });
  // With this screen gone, so must be the click that left the box.
  return IsClosing() ? NameRecord : nullptr;
}

void CardForm::OpenValueList(int index) {
  Global().CurFieldIndex = index;
  Frame::Main().ShowValueList(m_design.Screen);
}

bool CardForm::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::KeyPress && AsksForValues(*static_cast<QKeyEvent*>(event))) {
    if (const auto* box = qobject_cast<ui::TextBox*>(target)) {
      OpenValueList(box->Index());
      return true;
    }
  }
  return Form::eventFilter(target, event);
}

}  // namespace velmora
