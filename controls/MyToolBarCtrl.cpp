// SPDX-License-Identifier: MIT
#include "controls/MyToolBarCtrl.h"

#include "forms/LeaveCheck.h"
#include "forms/Twips.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCursor>
#include <QMouseEvent>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int none = -1;
constexpr int timerInterval = 50;
/// At the top and the left of the bar the pointer counts as off it.
constexpr int offBand = 3;

QAccessibleInterface* SpokenBar(const QString& /*className*/, QObject* object) {
  auto* bar = qobject_cast<MyToolBarCtrl*>(object);
  return bar != nullptr ? new QAccessibleWidget(bar, QAccessible::ToolBar) : nullptr;
}

}  // namespace

MyToolBarCtrl::MyToolBarCtrl(QWidget* parent)
    : QWidget(parent),
      Control(this),
      m_pictures(this, u"mPicture"_s, [this](PictureBox& picture) { SetupPicture(picture); }) {
  [[maybe_unused]] static const bool spoken = (QAccessible::installFactory(SpokenBar), true);
  setMouseTracking(true);
  // Over a picture of the strip, the symbols could not be told.
  setAutoFillBackground(true);
  ui::MarkAsCommand(this);
  m_timer.setInterval(timerInterval);
  connect(&m_timer, &QTimer::timeout, this, &MyToolBarCtrl::OnTimer);
}

void MyToolBarCtrl::SetupPicture(PictureBox& picture) {
  const int index = picture.Index();
  connect(&picture, &PictureBox::Move, this, [this, index] { SetHot(index); });
  connect(&picture, &PictureBox::Down, this, [this, index] { OnDown(index); });
  connect(&picture, &PictureBox::Up, this, [this, index] { OnUp(index); });
  connect(&picture, &PictureBox::Click, this, [this, index] { Q_EMIT Click(index); });
  connect(&picture, &PictureBox::MoveFocus, this, [this, index](int key) { MoveFocus(index, key); });
}

void MyToolBarCtrl::SetCount(std::int32_t count) {
  m_count = count;
  Rebuild();
}

void MyToolBarCtrl::SetImageList(const ui::ImageList& images) {
  m_images = images;
  Rebuild();
}

void MyToolBarCtrl::Rebuild() {
  const int size = ButtonSize * ui::TwipsPerPixel;
  const int gap = m_buttonGap * ui::TwipsPerPixel;
  Show(0, m_imagesNorm);
  m_pictures[0].SetPlace({.Left = 0, .Top = 0, .Width = size, .Height = size});
  for (int i = 1; i < m_count; ++i) LoadPicture(i);
  SetHeight(m_pictures[0].Height() + gap);
  if (!m_pictures.Has(m_count - 1)) return;
  const PictureBox& last = m_pictures[m_count - 1];
  SetWidth(last.Left() + last.Width() + gap);
}

void MyToolBarCtrl::LoadPicture(int index) {
  if (m_pictures.Has(index)) m_pictures.Unload(index);
  PictureBox& picture = m_pictures.Load(index);
  Show(index, m_imagesNorm);
  ShowTip(index);
  const PictureBox& before = m_pictures[index - 1];
  picture.SetLeft(before.Left() + before.Width() + m_buttonGap * ui::TwipsPerPixel);
  picture.SetVisible(true);
}

void MyToolBarCtrl::SetToolTipText(const QStringList& texts) {
  m_tips = texts;
  for (int i = 0; i < m_count; ++i) ShowTip(i);
}

void MyToolBarCtrl::ShowTip(int index) {
  if (index >= m_tips.size() || !m_pictures.Has(index)) return;
  m_pictures[index].setToolTip(m_tips[index]);
  m_pictures[index].setAccessibleName(m_tips[index]);
}

void MyToolBarCtrl::Show(int index, const Images& images) {
  if (!images || index < 0 || index >= images->ListCount() || !m_pictures.Has(index)) return;
  m_pictures[index].SetPicture(images->ListImage(index + 1));
}

void MyToolBarCtrl::SetHotFlag(int index, bool hot) {
  if (index >= 0 && index < MostButtons) HotFlags[static_cast<std::size_t>(index)] = hot;
}

bool MyToolBarCtrl::IsHot(int index) const {
  return index < MostButtons && HotFlags[static_cast<std::size_t>(index)];
}

void MyToolBarCtrl::SetHot(int index) {
  if (index == HotButton || !m_imagesNorm.has_value()) return;
  if (HotButton > none) {
    Show(HotButton, m_imagesNorm);
    SetHotFlag(HotButton, false);
  }
  if (index == none || !m_images.has_value() || IsHot(index)) return;
  Show(index, m_images);
  HotButton = static_cast<std::int16_t>(index);
  SetHotFlag(index, true);
}

bool MyToolBarCtrl::PointerIsOff() const {
  const QPoint pointer = mapFromGlobal(QCursor::pos());
  return pointer.x() < offBand || pointer.y() < offBand || pointer.x() > width() || pointer.y() > height();
}

void MyToolBarCtrl::OnDown(int index) {
  if (m_images.has_value()) Show(index, m_imagesDown);
}

void MyToolBarCtrl::OnUp(int index) {
  if (!m_images.has_value()) return;
  if (PointerIsOff()) {
    SetHot(none);
  } else {
    Show(index, m_images);
  }
}

void MyToolBarCtrl::OnTimer() {
  if (!PointerIsOff()) return;
  SetHot(none);
  HotButton = none;
}

void MyToolBarCtrl::mouseMoveEvent(QMouseEvent* /*event*/) {
  if (HotButton <= none) return;
  Show(HotButton, m_imagesNorm);
  SetHotFlag(HotButton, false);
  HotButton = none;
}

void MyToolBarCtrl::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_timer.start();
}

void MyToolBarCtrl::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_timer.stop();
}

void MyToolBarCtrl::SetFocus() {
  if (m_pictures.Has(m_focused)) m_pictures[m_focused].SetFocus();
}

void MyToolBarCtrl::MoveFocus(int from, int key) {
  if (m_count < 1) return;
  switch (key) {
    case Qt::Key_Home:
      m_focused = 0;
      break;
    case Qt::Key_End:
      m_focused = m_count - 1;
      break;
    case Qt::Key_Left:
    case Qt::Key_Up:
      m_focused = (from + m_count - 1) % m_count;
      break;
    default:
      m_focused = (from + 1) % m_count;
  }
  SetFocus();
}

}  // namespace velmora
