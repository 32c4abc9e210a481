// SPDX-License-Identifier: MIT
#include "forms/Control.h"

#include "forms/Twips.h"

#include <QWidget>

namespace velmora::ui {

using namespace Qt::StringLiterals;

Control::Control(QWidget* widget) : m_widget(widget) { WatchFocus(); }

Control::~Control() = default;

void Control::SetName(const QString& name, int index) {
  m_name = name;
  m_index = index;
  m_widget->setObjectName(index < 0 ? name : u"%1(%2)"_s.arg(name).arg(index));
}

void Control::SetLeft(int twips) { SetPlace({twips, m_place.Top, m_place.Width, m_place.Height}); }
void Control::SetTop(int twips) { SetPlace({m_place.Left, twips, m_place.Width, m_place.Height}); }
void Control::SetWidth(int twips) { SetPlace({m_place.Left, m_place.Top, twips, m_place.Height}); }
void Control::SetHeight(int twips) { SetPlace({m_place.Left, m_place.Top, m_place.Width, twips}); }

void Control::SetPlace(const Place& place) {
  m_place = place;
  // Both edges are rounded, so that controls that touch in twips touch in pixels.
  const int left = Pixels(place.Left);
  const int top = Pixels(place.Top);
  m_widget->setGeometry(left, top, Pixels(place.Left + place.Width) - left,
                        Pixels(place.Top + place.Height) - top);
  OnPlaced();
}

void Control::SetVisible(bool visible) {
  m_visible = visible;
  m_widget->setVisible(visible);
}

void Control::SetFocus() { m_widget->setFocus(Qt::OtherFocusReason); }

void Control::SetForeColor(Role role) {
  if (role == m_fore) return;
  m_fore = role;
  RefreshColors();
}

void Control::SetBackColor(Role role) {
  if (role == m_back) return;
  m_back = role;
  RefreshColors();
}

void Control::RefreshColors() {
  const bool plain = m_fore == Role::Default && m_back == Role::Default;
  if (!plain || m_widget->testAttribute(Qt::WA_SetPalette)) Dress(*m_widget, m_fore, m_back);
}

void Control::Unload() {
  if (m_array != nullptr) m_array->Unload(m_index);
}

}  // namespace velmora::ui
