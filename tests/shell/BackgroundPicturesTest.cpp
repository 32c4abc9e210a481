// SPDX-License-Identifier: MIT
// The strip's texts on background pictures: those that come with the program, and worse ones.
#include "base/settings/Settings.h"
#include "forms/Labels.h"
#include "forms/Palette.h"
#include "forms/ProgramLook.h"
#include "shell/Veil.h"
#include "tests/shell/RealFrame.h"

#include <QDir>
#include <QPainter>

#include <cmath>
#include <set>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class BackgroundPicturesTest : public RealFrame, public testing::WithParamInterface<bool> {
 protected:
  BackgroundPicturesTest() {
    ui::ApplyProgramLook(*qApp);
    ui::SetDarkLook(GetParam());
  }
  ~BackgroundPicturesTest() override { ui::SetDarkLook(std::nullopt); }

  /// What is behind the texts of the strip with that background.
  QImage Ground(const QString& picture) {
    SaveSetting(u"Init"_s, u"WallPap"_s, picture);
    Start();
    return Find<QWidget>(u"pMainPic"_s).grab(Texts()).toImage();
  }
  /// Where the strip shows texts on its background: all are empty while no file is open.
  [[nodiscard]] QRect Texts() const {
    QRect place;
    for (const QString& name : {u"NumberLab"_s, u"ClientLab"_s}) place |= Find<ui::Label>(name).geometry();
    return place;
  }
  [[nodiscard]] static double LeastContrast(const QImage& ground) {
    const QColor text = QApplication::palette().color(QPalette::WindowText);
    double least = 21;
    for (int y = 0; y < ground.height(); ++y) {
      for (int x = 0; x < ground.width(); ++x)
        least = std::min(least, Contrast(ground.pixelColor(x, y), text));
    }
    return least;
  }
  /// Black and white squares, the worst for texts of either colour.
  [[nodiscard]] QString Chessboard() const {
    QImage board(640, 128, QImage::Format_RGB32);
    board.fill(Qt::white);
    QPainter painter(&board);
    for (int square = 0; square < 40 * 8; ++square) {
      if ((square % 40 + square / 40) % 2 == 0)
        painter.fillRect(square % 40 * 16, square / 40 * 16, 16, 16, Qt::black);
    }
    EXPECT_TRUE(board.save(PathOf(u"board.bmp"_s)));
    return PathOf(u"board.bmp"_s);
  }
};

INSTANTIATE_TEST_SUITE_P(Looks, BackgroundPicturesTest, testing::Values(false, true),
                         [](const auto& look) { return look.param ? "Dark" : "Light"; });

TEST_P(BackgroundPicturesTest, PicturesOfTheProgram_UnderTheTextsOfTheStrip_LeaveThemReadable) {
  const QDir folder(QStringLiteral(VELMORA_WALLPAPERS));
  const QStringList pictures = folder.entryList({u"*.jpg"_s});
  ASSERT_EQ(pictures, QStringList({u"Hills.jpg"_s, u"Paper.jpg"_s, u"Waves.jpg"_s}));
  for (const QString& picture : pictures) {
    const QImage ground = Ground(folder.filePath(picture));
    EXPECT_GE(LeastContrast(ground), ReadableContrast) << picture.toStdString();
    std::set<QRgb> colours;
    for (int x = 0; x < ground.width(); ++x) colours.insert(ground.pixel(x, ground.height() / 2));
    EXPECT_GT(colours.size(), 5U) << picture.toStdString() << " cannot be seen";
  }
}

TEST_P(BackgroundPicturesTest, PictureOfTheUser_BlackAndWhite_LeavesTheTextsReadable) {
  EXPECT_GE(LeastContrast(Ground(Chessboard())), ReadableContrast);
}

TEST_P(BackgroundPicturesTest, LookChanged_PictureShown_StaysReadable) {
  const QString board = Chessboard();
  for (const QString& name : {board, u"(default)"_s}) {
    ui::SetDarkLook(GetParam());
    std::ignore = Ground(name);
    ui::SetDarkLook(!GetParam());
    QApplication::processEvents();
    EXPECT_GE(LeastContrast(Find<QWidget>(u"pMainPic"_s).grab(Texts()).toImage()), ReadableContrast)
        << name.toStdString();
  }
}

TEST_P(BackgroundPicturesTest, Strip_PictureOfAnotherShape_IsCutAndNotStretched) {
  // A disc in the middle of a tall picture stays one.
  QImage tall(400, 800, QImage::Format_RGB32);
  tall.fill(Qt::white);
  QPainter painter(&tall);
  painter.setBrush(Qt::red);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPoint(200, 400), 20, 20);
  painter.end();
  ASSERT_TRUE(tall.save(PathOf(u"tall.bmp"_s)));
  SaveSetting(u"Init"_s, u"WallPap"_s, PathOf(u"tall.bmp"_s));
  Start();
  auto& strip = Find<QWidget>(u"pMainPic"_s);
  for (QWidget* child : strip.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) child->hide();
  const QImage seen = strip.grab().toImage();
  QRect disc;
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      const QColor colour = seen.pixelColor(x, y);
      if (colour.red() - colour.green() > 30) disc |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_NEAR(disc.width(), disc.height(), 3);
  EXPECT_NEAR(disc.center().x(), seen.width() / 2, 3);
}

TEST(VeilForTest, Grounds_EasyAndHardToReadOn_GetAsMuchAsTheyNeed) {
  QImage ground(8, 8, QImage::Format_RGB32);
  ground.fill(Qt::white);
  EXPECT_FLOAT_EQ(VeilFor(ground, Qt::white, Qt::black), 0);
  ground.setPixelColor(3, 3, Qt::black);
  const float veil = VeilFor(ground, Qt::white, Qt::black);
  EXPECT_GT(veil, 0.3F);
  EXPECT_LT(veil, 0.7F);
  EXPECT_FLOAT_EQ(VeilFor(ground, Qt::black, Qt::black), 1);
  EXPECT_FLOAT_EQ(VeilFor({}, Qt::white, Qt::black), 0);
}

}  // namespace
}  // namespace velmora
