// SPDX-License-Identifier: MIT
#include "forms/Palette.h"
#include "shell/ToolPictures.h"

#include <QDir>
#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// The environment variables that say where themes and caches stand, put back at the end.
class Places final {
 public:
  Places()
      : m_data(qgetenv("XDG_DATA_DIRS")),
        m_home(qgetenv("XDG_DATA_HOME")),
        m_cache(qgetenv("XDG_CACHE_HOME")) {
    qputenv("XDG_CACHE_HOME", m_folder.filePath(u"cache"_s).toLocal8Bit());
    qputenv("XDG_DATA_HOME", m_folder.filePath(u"home"_s).toLocal8Bit());
  }
  ~Places() {
    Restore("XDG_DATA_DIRS", m_data);
    Restore("XDG_DATA_HOME", m_home);
    Restore("XDG_CACHE_HOME", m_cache);
  }
  Places(const Places&) = delete;
  Places& operator=(const Places&) = delete;

  void HideThemes() const { qputenv("XDG_DATA_DIRS", m_folder.filePath(u"none"_s).toLocal8Bit()); }
  static QDir Cache() { return QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)); }

 private:
  static void Restore(const char* name, const QByteArray& value) {
    if (value.isNull()) {
      qunsetenv(name);
    } else {
      qputenv(name, value);
    }
  }
  QTemporaryDir m_folder;
  QByteArray m_data;
  QByteArray m_home;
  QByteArray m_cache;
};

QImage Drawn(const QIcon& icon, int side = 26) { return icon.pixmap(QSize(side, side), 1.0).toImage(); }

/// How many pictures differ from all before them.
int Different(const ui::ImageList& images) {
  QList<QImage> seen;
  for (int i = 1; i <= images.ListCount(); ++i) {
    if (const QImage drawn = Drawn(images.ListImage(i)); !seen.contains(drawn)) seen += drawn;
  }
  return static_cast<int>(seen.size());
}

bool IsEmpty(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).alpha() != 0) return false;
    }
  }
  return true;
}

}  // namespace

TEST(ToolPictures, Images_EachButton_HasItsOwn) {
  const Places places;
  EXPECT_EQ(ToolPictures(LongTools()).Normal.ListCount(), 25);
  EXPECT_EQ(Different(ToolPictures(LongTools()).Normal), 25);
  EXPECT_EQ(ToolPictures(ShortTools()).Normal.ListCount(), 13);
  EXPECT_EQ(Different(ToolPictures(ShortTools()).Normal), 13);
}

TEST(ToolPictures, Images_ThreeStates_Differ) {
  const Places places;
  const ToolImages images = ToolPictures(ShortTools());
  const QImage normal = Drawn(images.Normal.ListImage(1));
  const QImage hover = Drawn(images.Hover.ListImage(1));
  const QImage pressed = Drawn(images.Pressed.ListImage(1));
  EXPECT_FALSE(IsEmpty(normal));
  EXPECT_NE(normal, hover);
  EXPECT_NE(hover, pressed);
  EXPECT_GT(hover.pixelColor(13, 3).lightness(), pressed.pixelColor(13, 3).lightness());
}

TEST(ToolPictures, Images_LookChanges_TheSamePictureFollows) {
  const Places places;
  const ToolImages images = ToolPictures(LongTools());
  ui::SetDarkLook(false);
  const QImage light = Drawn(images.Normal.ListImage(14));
  ui::SetDarkLook(true);
  const QImage dark = Drawn(images.Normal.ListImage(14));
  ui::SetDarkLook(std::nullopt);
  EXPECT_NE(light, dark);
}

TEST(ToolPictures, Images_ThemeMissing_AreLettersAndStillTellButtonsApart) {
  const Places places;
  places.HideThemes();
  const ToolImages images = ToolPictures(LongTools());
  for (int i = 1; i <= images.Normal.ListCount(); ++i)
    EXPECT_FALSE(IsEmpty(Drawn(images.Normal.ListImage(i)))) << i;
  EXPECT_EQ(Different(images.Normal), 25);
  EXPECT_EQ(Different(ToolPictures(ShortTools()).Normal), 13);
}

TEST(ToolPictures, Images_DrawnOnce_ComeFromTheCacheNextTime) {
  const Places places;
  const QImage drawn = Drawn(ToolPictures(LongTools()).Normal.ListImage(3));
  const QStringList kept = Places::Cache().entryList({u"toolbar-*.png"_s});
  ASSERT_EQ(kept.size(), 1);
  EXPECT_EQ(Drawn(ToolPictures(LongTools()).Normal.ListImage(3)), drawn);
  QImage strip(Places::Cache().filePath(kept[0]));
  strip.fill(Qt::magenta);
  ASSERT_TRUE(strip.save(Places::Cache().filePath(kept[0])));
  EXPECT_EQ(Drawn(ToolPictures(LongTools()).Normal.ListImage(3)).pixelColor(13, 13), QColor(Qt::magenta));
}

TEST(ToolPictures, Images_DamagedCache_AreDrawnAnew) {
  const Places places;
  const QImage drawn = Drawn(ToolPictures(LongTools()).Normal.ListImage(3));
  const QStringList kept = Places::Cache().entryList({u"toolbar-*.png"_s});
  ASSERT_EQ(kept.size(), 1);
  QFile file(Places::Cache().filePath(kept[0]));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  EXPECT_EQ(Drawn(ToolPictures(LongTools()).Normal.ListImage(3)), drawn);
}

TEST(ToolPictures, Images_CacheCannotBeWritten_AreDrawnAllTheSame) {
  const Places places;
  qputenv("XDG_CACHE_HOME", "/proc/none");
  EXPECT_FALSE(IsEmpty(Drawn(ToolPictures(LongTools()).Normal.ListImage(3))));
}
