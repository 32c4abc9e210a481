// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <array>

namespace velmora {

/// Where a control of a card screen stands before the layout moves it, in twips. A size of 0 is the control's
/// own.
struct ControlBox {
  QStringView Name;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// The two places of the comment box.
struct CommentPlace {
  int Top = 0;
  int Height = 0;
};

/// What the card viewer and the card editor do not share.
struct CardGeometry {
  std::array<ControlBox, 8> Boxes;
  int CheckHeight = 0;
  CommentPlace CommentOpen;
  CommentPlace CommentClosed;
};

inline constexpr CardGeometry ViewerGeometry{
    .Boxes = {{{u"NameCard", 200, 600, 0, 0},
               {u"NameRecord", 1215, 600, 7095, 285},
               {u"IndexText", 1215, -15, 810, 285},
               {u"DescrText", 200, 3330, 9205, 670},
               {u"EditData", 200, 4140, 1095, 315},
               {u"CancelData", 1830, 4140, 1095, 315},
               {u"cmdEdUp", 9090, 4020, 285, 285},
               {u"cmdEdDwn", 8790, 4020, 285, 285}}},
    .CheckHeight = 195,
    .CommentOpen = {960, 3040},
    .CommentClosed = {3330, 670},
};

inline constexpr CardGeometry EditorGeometry{
    .Boxes = {{{u"NameCard", 195, 600, 0, 0},
               {u"NameRecord", 1215, 600, 7215, 285},
               {u"IndexText", 1215, 0, 810, 285},
               {u"DescrText", 200, 3330, 9205, 670},
               {u"EditData", 200, 4140, 1095, 315},
               {u"CancelData", 1830, 4140, 1095, 315},
               {u"cmdEdUp", 9090, 4020, 285, 285},
               {u"cmdEdDwn", 8790, 4020, 285, 285}}},
    .CheckHeight = 225,
    .CommentOpen = {970, 3060},
    .CommentClosed = {3360, 670},
};

}  // namespace velmora
