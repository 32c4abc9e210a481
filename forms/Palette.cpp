// SPDX-License-Identifier: MIT
#include "forms/Palette.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPalette>
#include <QRadioButton>

#include <array>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

struct Look {
  QRgb ButtonFace, White, Ink, Red, Blue, DarkRed;
  QRgb AlternateRow, Edge, Shade, Bright, Highlight, HighlightedText, Faint, Link, TipFace;
};

constexpr Look lightLook{.ButtonFace = 0xfff0f0f0,
                         .White = 0xffffffff,
                         .Ink = 0xff000000,
                         .Red = 0xffdc0000,
                         .Blue = 0xff0000ff,
                         .DarkRed = 0xffc00000,
                         .AlternateRow = 0xfff5f7fa,
                         .Edge = 0xffa8a8a8,
                         .Shade = 0xff707070,
                         .Bright = 0xffffffff,
                         .Highlight = 0xff1f66c8,
                         .HighlightedText = 0xffffffff,
                         .Faint = 0xff767676,
                         .Link = 0xff0b57d0,
                         .TipFace = 0xffffffe1};
constexpr Look darkLook{.ButtonFace = 0xff2d2f33,
                        .White = 0xff1d1e21,
                        .Ink = 0xffececec,
                        .Red = 0xffff6e6e,
                        .Blue = 0xff8ab4ff,
                        .DarkRed = 0xffffa394,
                        .AlternateRow = 0xff25272a,
                        .Edge = 0xff70747b,
                        .Shade = 0xff141517,
                        .Bright = 0xff474a50,
                        .Highlight = 0xff5c9dff,
                        .HighlightedText = 0xff0b0c0e,
                        .Faint = 0xff9a9da3,
                        .Link = 0xff8ab4ff,
                        .TipFace = 0xff3a3d42};

std::optional<bool>& ForcedDark() {
  static std::optional<bool> forced;
  return forced;
}

bool& DesktopIsDark() {
  static bool dark = false;
  return dark;
}

const Look& PresentLook() { return IsDarkLook() ? darkLook : lightLook; }

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Active, QPalette::Window).lightness() <
         palette.color(QPalette::Active, QPalette::WindowText).lightness();
}

QPalette PaletteOf(const Look& look) {
  const std::array<std::pair<QPalette::ColorRole, QRgb>, 20> colors{{
      {QPalette::Window, look.ButtonFace},
      {QPalette::WindowText, look.Ink},
      {QPalette::Base, look.White},
      {QPalette::AlternateBase, look.AlternateRow},
      {QPalette::Text, look.Ink},
      {QPalette::PlaceholderText, look.Faint},
      {QPalette::Button, look.ButtonFace},
      {QPalette::ButtonText, look.Ink},
      {QPalette::BrightText, look.Bright},
      {QPalette::Light, look.Bright},
      {QPalette::Midlight, look.ButtonFace},
      {QPalette::Mid, look.Edge},
      {QPalette::Dark, look.Edge},
      {QPalette::Shadow, look.Shade},
      {QPalette::Highlight, look.Highlight},
      {QPalette::HighlightedText, look.HighlightedText},
      {QPalette::Link, look.Link},
      {QPalette::LinkVisited, look.Link},
      {QPalette::ToolTipBase, look.TipFace},
      {QPalette::ToolTipText, look.Ink},
  }};
  QPalette palette;
  for (const auto& [role, color] : colors) palette.setColor(role, QColor::fromRgb(color));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor::fromRgb(look.Faint));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(look.ButtonFace));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(look.Edge));
  return palette;
}

/// Notices that the desktop changed its theme.
class ThemeWatcher final : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    if (event->type() == QEvent::ThemeChange && !m_following) Follow();
    return false;
  }

 private:
  void Follow() {
    m_following = true;
    // Without a palette of ours the application shows the desktop's.
    QApplication::setPalette(QPalette());
    DesktopIsDark() = IsDark(QApplication::palette());
    RepaintLook();
    m_following = false;
  }
  bool m_following = false;
};

}  // namespace

bool IsDarkLook() {
  if (ForcedDark().has_value()) return *ForcedDark();
  const QByteArray wanted = qgetenv("VELMORA_LOOK");
  if (wanted == "light") return false;
  if (wanted == "dark") return true;
  return DesktopIsDark();
}

void SetDarkLook(std::optional<bool> dark) {
  ForcedDark() = dark;
  RepaintLook();
}

QColor RoleColor(Role role) {
  const Look& look = PresentLook();
  switch (role) {
    case Role::Default:
      return {};
    case Role::ButtonFace:
      return QColor::fromRgb(look.ButtonFace);
    case Role::White:
      return QColor::fromRgb(look.White);
    case Role::Ink:
      return QColor::fromRgb(look.Ink);
    case Role::Red:
      return QColor::fromRgb(look.Red);
    case Role::Blue:
      return QColor::fromRgb(look.Blue);
    case Role::DarkRed:
      return QColor::fromRgb(look.DarkRed);
  }
  return {};
}

void RepaintLook() {
  QApplication::setPalette(PaletteOf(PresentLook()));
  for (QWidget* widget : QApplication::allWidgets()) {
    if (auto* colored = dynamic_cast<Colored*>(widget)) colored->RefreshColors();
  }
}

void FollowDesktop(QApplication& application) {
  DesktopIsDark() = IsDark(QApplication::palette());
  application.installEventFilter(new ThemeWatcher(&application));
}

void Dress(QWidget& widget, Role fore, Role back) {
  // On a ground as strong as a text colour, the text takes the colour of a box's ground.
  const bool strongGround = back == Role::Red || back == Role::Blue || back == Role::DarkRed;
  const Role ink = fore == Role::Default && strongGround ? Role::White : fore;
  QPalette palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    if (ink != Role::Default) {
      for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(group, role, RoleColor(ink));
    }
    if (back != Role::Default) {
      for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(group, role, RoleColor(back));
    }
  }
  widget.setPalette(palette);
  // These have no ground that a style would paint in the palette's colour.
  const bool bare = qobject_cast<QLabel*>(&widget) != nullptr ||
                    qobject_cast<QCheckBox*>(&widget) != nullptr ||
                    qobject_cast<QRadioButton*>(&widget) != nullptr;
  if (bare) widget.setAutoFillBackground(back != Role::Default);
}

}  // namespace velmora::ui
