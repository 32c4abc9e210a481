// SPDX-License-Identifier: MIT
#include "forms/ImageList.h"
#include "forms/Palette.h"
#include "forms/ToolPicture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmora::ui {
namespace {

QIcon Plain(const QColor& color) {
  QPixmap pixmap(8, 8);
  pixmap.fill(color);
  return QIcon(pixmap);
}

/// A symbol that fills its square with the ink of the look, and counts how often it is drawn.
SymbolPainter Filled(int& drawings) {
  return [&drawings](QPainter& painter, const QRectF& square) {
    ++drawings;
    painter.fillRect(square, RoleColor(Role::Ink));
  };
}

QImage Painted(const QIcon& icon, const QSize& size, double sharpness = 1.0) {
  QImage image(size * sharpness, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(sharpness);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  icon.paint(&painter, QRect({}, size));
  return image;
}

TEST(ImageListTest, ListImage_CountsFromOne) {
  ImageList images;
  const QIcon first = Plain(Qt::red);
  images.Add(first);
  images.Add(Plain(Qt::blue));
  EXPECT_EQ(images.ListCount(), 2);
  EXPECT_EQ(images.ListImage(1).cacheKey(), first.cacheKey());
}

TEST(ImageListTest, ListImage_NoSuchNumber_Throws) {
  ImageList images;
  EXPECT_THROW((void)images.ListImage(1), std::out_of_range);
  images.Add(Plain(Qt::red));
  EXPECT_THROW((void)images.ListImage(0), std::out_of_range);
  EXPECT_THROW((void)images.ListImage(2), std::out_of_range);
}

TEST(ToolPictureTest, Paint_AtRest_IsTheSymbolInTheMiddleAlone) {
  int drawings = 0;
  const QImage image = Painted(ToolPicture(Filled(drawings), PictureState::Normal), {26, 26});
  EXPECT_EQ(image.pixelColor(1, 13).alpha(), 0);
  EXPECT_EQ(image.pixelColor(24, 13).alpha(), 0);
  EXPECT_EQ(image.pixelColor(2, 2), RoleColor(Role::Ink));
  EXPECT_EQ(image.pixelColor(23, 23), RoleColor(Role::Ink));
}

TEST(ToolPictureTest, Paint_Pressed_MovesTheSymbolInward) {
  int drawings = 0;
  const QImage image = Painted(ToolPicture(Filled(drawings), PictureState::Pressed), {26, 26});
  EXPECT_NE(image.pixelColor(2, 2), RoleColor(Role::Ink));
  EXPECT_EQ(image.pixelColor(24, 24), RoleColor(Role::Ink));
}

TEST(ToolPictureTest, Paint_SecondTime_TakesTheDrawingItHas) {
  int drawings = 0;
  const QIcon picture = ToolPicture(Filled(drawings), PictureState::Hover);
  Painted(picture, {26, 26});
  Painted(picture, {26, 26});
  EXPECT_EQ(drawings, 1);
}

TEST(ToolPictureTest, Paint_OtherSizeSharpnessOrLook_DrawsAnew) {
  int drawings = 0;
  const QIcon picture = ToolPicture(Filled(drawings), PictureState::Normal);
  SetDarkLook(false);
  Painted(picture, {26, 26});
  EXPECT_EQ(Painted(picture, {52, 52}).pixelColor(4, 4), RoleColor(Role::Ink));
  EXPECT_EQ(Painted(picture, {52, 52}, 2.0).pixelColor(8, 8), RoleColor(Role::Ink));
  SetDarkLook(true);
  EXPECT_EQ(Painted(picture, {52, 52}, 2.0).pixelColor(8, 8), RoleColor(Role::Ink));
  SetDarkLook(std::nullopt);
  EXPECT_EQ(drawings, 4);
}

}  // namespace
}  // namespace velmora::ui
