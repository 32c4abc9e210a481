// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <span>

class QWidget;

namespace velmora::ui {

/// Where the control of that name stands, in twips. A size of 0 is the control's own.
struct NamedPlace {
  QStringView Name;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// Puts the controls of a screen to the places of a table; there must be a control of each name.
void PlaceControls(const QWidget& screen, std::span<const NamedPlace> places);

}  // namespace velmora::ui
