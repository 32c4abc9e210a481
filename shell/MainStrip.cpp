// SPDX-License-Identifier: MIT
#include "shell/MainStrip.h"

#include "forms/Twips.h"
#include "resources/strings.h"
#include "shell/PicturePreview.h"
#include "shell/ToolPictures.h"
#include "shell/ToolTable.h"
#include "shell/Veil.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// The two toolbars stand above the rows.
constexpr int shortBarButton = 52;
constexpr int longBarButton = 26;
constexpr int toolbarsHeight = (shortBarButton + longBarButton) * ui::TwipsPerPixel;
constexpr int rowGap = 60;
constexpr int rowHeight = 300;
constexpr int firstRow = toolbarsHeight + rowGap;
constexpr int secondRow = firstRow + rowHeight + rowGap;
constexpr int stripHeight = secondRow + rowHeight + rowGap;

constexpr int margin = 60;
constexpr int arrowWidth = 285;
constexpr int seekLeft = margin + 2 * arrowWidth + 45;
constexpr int seekWidth = 855;
constexpr int numberLeft = seekLeft + seekWidth + 120;
constexpr int numberWidth = 1125;
constexpr int nameLeft = numberLeft + numberWidth + 60;
constexpr int clockWidth = 1200;
constexpr int telephoneWidth = 2400;

// A photograph is wider than any screen needs; each size of the strip is made from it anew.
constexpr int widestPicture = 2560;
constexpr int iconSide = 64;

void Fill(ui::ComboBox& list, const QStringList& entries, const QString& shown) {
  list.Clear();
  for (const QString& entry : entries) list.AddItem(entry);
  list.SetText(shown);
}

}  // namespace

MainStrip::MainStrip(QWidget* parent) : QWidget(parent) {
  setObjectName(u"pMainPic"_s);
  setFixedHeight(ui::Pixels(stripHeight));
  setAutoFillBackground(true);
  SetupBars();
  SetupMoves();
  SetupCard();
  SetupContacts();
}

void MainStrip::SetupBars() {
  tool = MakeBar(u"tool"_s, shortBarButton, ShortTools());
  ltTool = MakeBar(u"ltTool"_s, longBarButton, LongTools());
  ltTool->SetTop(shortBarButton * ui::TwipsPerPixel);
}

MyToolBarCtrl* MainStrip::MakeBar(const QString& name, std::int16_t buttonSize, ToolRows tools) {
  auto* bar = new MyToolBarCtrl(this);
  bar->SetName(name);
  bar->ButtonSize = buttonSize;
  const ToolImages images = ToolPictures(tools);
  bar->SetImages(images.Hover);
  bar->SetImagesNorm(images.Normal);
  bar->SetImagesDown(images.Pressed);
  bar->SetCount(static_cast<std::int32_t>(tools.size()));
  QStringList tips;
  for (const ToolRow& row : tools.first(tools.size() - 1)) tips += row.Tip;
  bar->SetToolTipText(tips);
  // The button beyond the tips has no tip, but whoever hears the program should not hear nothing.
  bar->mPicture()[bar->count() - 1].setAccessibleName(strings::tools::BeyondTips);
  return bar;
}

ui::SSCommand* MainStrip::MakeArrow(const QString& name, QStyle::StandardPixmap arrow, int left,
                                    const QString& spoken) {
  auto* button = new ui::SSCommand(this);
  button->SetName(name);
  button->setIcon(style()->standardIcon(arrow));
  button->setAccessibleName(spoken);
  button->setToolTip(spoken);
  button->SetPlace({.Left = left, .Top = firstRow, .Width = arrowWidth, .Height = rowHeight});
  return button;
}

void MainStrip::SetupMoves() {
  cmdDown = MakeArrow(u"cmdDown"_s, QStyle::SP_ArrowLeft, margin, strings::strip::PreviousCard);
  cmdUp = MakeArrow(u"cmdUp"_s, QStyle::SP_ArrowRight, margin + arrowWidth, strings::strip::NextCard);
  connect(cmdDown, &ui::SSCommand::Click, this, &MainStrip::DownClicked);
  connect(cmdUp, &ui::SSCommand::Click, this, &MainStrip::UpClicked);

  txtSeek = new ui::TextBox(this);
  txtSeek->SetName(u"txtSeek"_s);
  txtSeek->setToolTip(strings::strip::SeekTip);
  txtSeek->setAccessibleName(strings::strip::SeekTip);
  txtSeek->SetPlace({.Left = seekLeft, .Top = firstRow, .Width = seekWidth, .Height = rowHeight});
  connect(txtSeek, &ui::TextBox::Change, this, &MainStrip::SeekChanged);
}

void MainStrip::SetupCard() {
  NumberLab = new ui::Label(this);
  NumberLab->SetName(u"NumberLab"_s);
  NumberLab->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  NumberLab->SetPlace({.Left = numberLeft, .Top = firstRow, .Width = numberWidth, .Height = rowHeight});

  ClientLab = new ui::Label(this);
  ClientLab->SetName(u"ClientLab"_s);
  ClientLab->setToolTip(strings::strip::NameTip);
  QFont bold = ClientLab->font();
  bold.setBold(true);
  ClientLab->setFont(bold);
  connect(ClientLab, &ui::Label::DblClick, this, &MainStrip::NameDoubleClicked);

  TimeLab = new ui::SSPanel(this);
  TimeLab->SetName(u"TimeLab"_s);
  TimeLab->setToolTip(strings::strip::ClockTip);
  TimeLab->setAccessibleName(strings::strip::ClockTip);
  TimeLab->setAlignment(Qt::AlignCenter);
  connect(TimeLab, &ui::SSPanel::Click, this, &MainStrip::ClockClicked);
}

void MainStrip::SetupContacts() {
  AgentLab = new ui::ComboBox(this);
  AgentLab->SetName(u"AgentLab"_s);
  AgentLab->setToolTip(strings::strip::ContactTip);
  AgentLab->setAccessibleName(strings::strip::ContactTip);
  connect(AgentLab, &ui::ComboBox::Click, this, &MainStrip::ContactClicked);

  TelephonList = new ui::ComboBox(this);
  TelephonList->SetName(u"TelephonList"_s);
  TelephonList->setToolTip(strings::strip::TelephoneTip);
  TelephonList->setAccessibleName(strings::strip::TelephoneTip);
}

void MainStrip::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int right = ui::TwipsOf(width()) - margin;
  const int clockLeft = right - clockWidth;
  ClientLab->SetPlace(
      {.Left = nameLeft, .Top = firstRow, .Width = clockLeft - nameLeft - margin, .Height = rowHeight});
  TimeLab->SetPlace({.Left = clockLeft, .Top = firstRow, .Width = clockWidth, .Height = rowHeight});
  const int telephoneLeft = right - telephoneWidth;
  AgentLab->SetPlace(
      {.Left = nameLeft, .Top = secondRow, .Width = telephoneLeft - nameLeft - margin, .Height = rowHeight});
  TelephonList->SetPlace(
      {.Left = telephoneLeft, .Top = secondRow, .Width = telephoneWidth, .Height = rowHeight});
}

void MainStrip::ShowCard(const QString& name, const QString& number) {
  ClientLab->SetCaption(name);
  NumberLab->SetCaption(number);
}

void MainStrip::ShowContacts(const QStringList& contacts, const QString& shown) {
  Fill(*AgentLab, contacts, shown);
}

void MainStrip::ShowTelephones(const QStringList& numbers, const QString& shown) {
  Fill(*TelephonList, numbers, shown);
}

void MainStrip::BlankCard() {
  ShowCard({}, {});
  AgentLab->Clear();
  TelephonList->Clear();
}

void MainStrip::SetPicture(const QPixmap& picture) {
  m_isDefault = false;
  Take(picture);
}

void MainStrip::SetDefaultPicture() {
  m_isDefault = true;
  Take(DefaultBackground(palette()));
}

void MainStrip::Take(const QPixmap& picture) {
  m_picture = picture.width() > widestPicture ? picture.scaledToWidth(widestPicture, Qt::SmoothTransformation)
                                              : picture;
  m_ground = {};
  m_veil = palette().color(QPalette::Window);
  m_veil.setAlphaF(VeilFor(m_picture.toImage(), m_veil, palette().color(QPalette::WindowText)));
  update();
}

QIcon MainStrip::PictureIcon() const {
  const int side = std::min(m_picture.width(), m_picture.height());
  QRect middle(0, 0, side, side);
  middle.moveCenter(m_picture.rect().center());
  return QIcon(
      m_picture.copy(middle).scaled(iconSide, iconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

QPixmap MainStrip::DefaultBackground(const QPalette& palette) {
  constexpr int side = 256;
  QPixmap picture(side, side);
  QLinearGradient light(0, 0, 0, side);
  light.setColorAt(0, palette.color(QPalette::Light));
  light.setColorAt(1, palette.color(QPalette::Button));
  QPainter(&picture).fillRect(picture.rect(), light);
  return picture;
}

void MainStrip::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!HasPicture()) return;
  if (m_ground.deviceIndependentSize() != size()) m_ground = Ground();
  QPainter(this).drawPixmap(0, 0, m_ground);
}

void MainStrip::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Take(m_isDefault ? DefaultBackground(palette()) : m_picture);
}

QPixmap MainStrip::Ground() const {
  QPixmap ground = Filling(m_picture, size() * devicePixelRatio());
  QPainter(&ground).fillRect(ground.rect(), m_veil);
  ground.setDevicePixelRatio(devicePixelRatio());
  return ground;
}

}  // namespace velmora
