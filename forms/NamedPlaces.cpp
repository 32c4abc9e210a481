// SPDX-License-Identifier: MIT
#include "forms/NamedPlaces.h"

#include "forms/Control.h"

#include <QWidget>

namespace velmora::ui {

void PlaceControls(const QWidget& screen, std::span<const NamedPlace> places) {
  for (const NamedPlace& place : places) {
    auto* control = dynamic_cast<Control*>(screen.findChild<QWidget*>(place.Name.toString()));
    Q_ASSERT(control != nullptr);
    control->SetPlace({.Left = place.Left,
                       .Top = place.Top,
                       .Width = place.Width == 0 ? control->Width() : place.Width,
                       .Height = place.Height == 0 ? control->Height() : place.Height});
  }
}

}  // namespace velmora::ui
