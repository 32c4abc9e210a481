// SPDX-License-Identifier: MIT
#include "forms/NamedPlaces.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

#include <array>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class NamedPlacesTest : public WindowTest {};

TEST_F(NamedPlacesTest, PlaceControls_ASizeOfZero_IsTheControlsOwn) {
  TextBox name(&m_window);
  name.SetName(u"NameRecord"_s);
  TextBox number(&m_window);
  number.SetName(u"NameText"_s, 3);
  number.SetPlace({1, 2, 900, 285});
  constexpr std::array<NamedPlace, 2> places{
      {{u"NameRecord", 1215, 600, 7095, 300}, {u"NameText(3)", 200, 40, 0, 0}}};
  PlaceControls(m_window, places);
  EXPECT_EQ(name.Placed(), (Place{1215, 600, 7095, 300}));
  EXPECT_EQ(number.Placed(), (Place{200, 40, 900, 285}));
}

}  // namespace
}  // namespace velmora::ui
