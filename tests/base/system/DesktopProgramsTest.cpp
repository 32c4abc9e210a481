// SPDX-License-Identifier: MIT
#include "base/system/DesktopPrograms.h"
#include "tests/support/Environment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// A desktop of files: the user's own places and two of the system's.
class DesktopProgramsTest : public testing::Test {
 protected:
  void Write(const QString& path, const QByteArray& content) const {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(Path(path)).path()));
    QFile file(Path(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  /// An entry in one of the places "home", "near", "far", named after its file.
  void Install(const QString& place, const QString& file, const QByteArray& lines = {}) const {
    Write(place + u"/applications/"_s + file,
          "[Desktop Entry]\nType=Application\nName=" + file.toUtf8() + "\nExec=run %f\n" + lines);
  }
  [[nodiscard]] DesktopPrograms Programs(const QStringList& desktops = {}) const {
    return DesktopPrograms({.ConfigDirs = {Path(u"config"_s), Path(u"xdg"_s)},
                            .DataDirs = {Path(u"home"_s), Path(u"near"_s), Path(u"far"_s)},
                            .Desktops = desktops});
  }
  /// The program for plain text; empty when there is none.
  [[nodiscard]] QString ForText(const QStringList& desktops = {}) const {
    return NameOf(Programs(desktops).ForType(u"text/plain"_s));
  }
  [[nodiscard]] QString Calculator(const QStringList& desktops = {}) const {
    return NameOf(Programs(desktops).OfCategory(u"Calculator"_s));
  }
  [[nodiscard]] static QString NameOf(const std::optional<DesktopEntry>& entry) {
    return entry ? entry->Name() : QString();
  }
  [[nodiscard]] QString Path(const QString& name) const { return m_dir.filePath(name); }

  static constexpr auto OpensText = "MimeType=text/x-c;text/plain;\n";
  static constexpr auto Reckons = "Categories=Utility;Calculator;\n";

 private:
  QTemporaryDir m_dir;
};

TEST_F(DesktopProgramsTest, ForType_UsersChoice_BeatsTheSystems) {
  for (const QString& name : {u"a.desktop"_s, u"b.desktop"_s, u"c.desktop"_s}) Install(u"far"_s, name);
  Write(u"near/applications/mimeapps.list"_s, "[Default Applications]\ntext/plain=a.desktop\n");
  EXPECT_EQ(ForText(), u"a.desktop"_s);
  Write(u"xdg/mimeapps.list"_s, "[Default Applications]\ntext/plain=b.desktop;\n");
  EXPECT_EQ(ForText(), u"b.desktop"_s);
  Write(u"config/mimeapps.list"_s, "[Default Applications]\ntext/plain=c.desktop;a.desktop\n");
  EXPECT_EQ(ForText(), u"c.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_ListOfTheRunningDesktop_BeatsTheOneBesideIt) {
  for (const QString& name : {u"a.desktop"_s, u"b.desktop"_s, u"c.desktop"_s}) Install(u"far"_s, name);
  Write(u"config/mimeapps.list"_s, "[Default Applications]\ntext/plain=a.desktop\n");
  Write(u"config/xfce-mimeapps.list"_s, "[Default Applications]\ntext/plain=b.desktop\n");
  Write(u"config/kde-mimeapps.list"_s, "[Default Applications]\ntext/plain=c.desktop\n");
  EXPECT_EQ(ForText({u"XFCE"_s}), u"b.desktop"_s);
  EXPECT_EQ(ForText({u"KDE"_s, u"XFCE"_s}), u"c.desktop"_s);
  EXPECT_EQ(ForText(), u"a.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_ChosenProgramIsGone_TakesTheNext) {
  Install(u"far"_s, u"b.desktop"_s);
  Write(u"config/mimeapps.list"_s, "[Default Applications]\ntext/plain=gone.desktop;b.desktop\n");
  EXPECT_EQ(ForText(), u"b.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_ListOfOldName_Counts) {
  Install(u"far"_s, u"a.desktop"_s, OpensText);
  Install(u"far"_s, u"b.desktop"_s);
  Write(u"far/applications/defaults.list"_s, "[Default Applications]\ntext/plain=b.desktop\n");
  EXPECT_EQ(ForText(), u"b.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_NoChoice_TakesOneThatOpensIt) {
  Install(u"far"_s, u"a.desktop"_s, "MimeType=image/png;\n");
  EXPECT_EQ(ForText(), QString());
  Install(u"far"_s, u"b.desktop"_s, OpensText);
  EXPECT_EQ(ForText(), u"b.desktop"_s);
  Install(u"near"_s, u"c.desktop"_s, OpensText);
  EXPECT_EQ(ForText(), u"c.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_AddedAndRemoved_ChangeWhatOpensIt) {
  Install(u"far"_s, u"a.desktop"_s, OpensText);
  Install(u"far"_s, u"b.desktop"_s, OpensText);
  Install(u"far"_s, u"c.desktop"_s);
  Write(u"config/mimeapps.list"_s, "[Removed Associations]\ntext/plain=a.desktop\n");
  EXPECT_EQ(ForText(), u"b.desktop"_s);
  Write(u"xdg/mimeapps.list"_s, "[Added Associations]\ntext/plain=a.desktop;c.desktop\n");
  EXPECT_EQ(ForText(), u"c.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_TerminalNoDisplayOrHidden_IsPassedOver) {
  Install(u"far"_s, u"a.desktop"_s, QByteArray(OpensText) + "Terminal=true\n");
  Install(u"far"_s, u"b.desktop"_s, QByteArray(OpensText) + "NoDisplay=true\n");
  Install(u"far"_s, u"c.desktop"_s, QByteArray(OpensText) + "Hidden=true\n");
  Write(u"config/mimeapps.list"_s, "[Default Applications]\ntext/plain=a.desktop;b.desktop;c.desktop\n");
  EXPECT_EQ(ForText(), QString());
  Install(u"far"_s, u"d.desktop"_s, OpensText);
  EXPECT_EQ(ForText(), u"d.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_ProgramThatIsNotInstalled_IsPassedOver) {
  Install(u"far"_s, u"a.desktop"_s, QByteArray(OpensText) + "TryExec=no-such-program-here\n");
  Install(u"far"_s, u"b.desktop"_s, QByteArray(OpensText) + "TryExec=/bin/sh\n");
  EXPECT_EQ(ForText(), u"b.desktop"_s);
}

TEST_F(DesktopProgramsTest, ForType_WhatIsNoProgram_IsPassedOver) {
  Write(u"far/applications/a.desktop"_s,
        "[Desktop Entry]\nType=Link\nURL=x\nMimeType=text/plain;\nExec=run\n");
  Write(u"far/applications/b.desktop"_s, "[Desktop Entry]\nType=Application\nName=b\nMimeType=text/plain;\n");
  Write(u"far/applications/c.desktop"_s, "garbage");
  EXPECT_EQ(ForText(), QString());
}

TEST_F(DesktopProgramsTest, OfCategory_FirstInstalledByPlaceAndName) {
  EXPECT_EQ(Calculator(), QString());
  Install(u"far"_s, u"a.desktop"_s, Reckons);
  Install(u"near"_s, u"c.desktop"_s, Reckons);
  Install(u"near"_s, u"b.desktop"_s, Reckons);
  Install(u"home"_s, u"z.desktop"_s, "Categories=Utility;\n");
  EXPECT_EQ(Calculator(), u"b.desktop"_s);
}

TEST_F(DesktopProgramsTest, OfCategory_UsersEntry_HidesTheSystemsOfItsName) {
  Install(u"far"_s, u"a.desktop"_s, Reckons);
  Install(u"home"_s, u"a.desktop"_s, "Hidden=true\n");
  EXPECT_EQ(Calculator(), QString());
}

TEST_F(DesktopProgramsTest, OfCategory_EntryOfAnotherDesktop_IsPassedOver) {
  Install(u"far"_s, u"a.desktop"_s, QByteArray(Reckons) + "OnlyShowIn=KDE;\n");
  Install(u"far"_s, u"b.desktop"_s, QByteArray(Reckons) + "NotShowIn=GNOME;\n");
  EXPECT_EQ(Calculator({u"KDE"_s}), u"a.desktop"_s);
  EXPECT_EQ(Calculator({u"XFCE"_s}), u"b.desktop"_s);
  EXPECT_EQ(Calculator({u"GNOME"_s}), QString());
}

TEST_F(DesktopProgramsTest, FirstOf_NamesInOrder_FoldersCountAsHyphens) {
  Install(u"far"_s, u"monitor.desktop"_s);
  Install(u"far"_s, u"kde/info.desktop"_s);
  const auto first = Programs().FirstOf({u"none.desktop"_s, u"kde-info.desktop"_s, u"monitor.desktop"_s});
  EXPECT_EQ(NameOf(first), u"kde/info.desktop"_s);
  EXPECT_FALSE(Programs().FirstOf({u"none.desktop"_s}));
}

TEST_F(DesktopProgramsTest, StartWith_GivesTheCommandWithItsDirectory) {
  Install(u"far"_s, u"a.desktop"_s, "Path=/srv\nCategories=Calculator;\n");
  const ProgramStart expected{.Program = u"run"_s, .Arguments = {u"/tmp/x y"_s}, .Directory = u"/srv"_s};
  EXPECT_EQ(Programs().OfCategory(u"Calculator"_s)->StartWith({u"/tmp/x y"_s}), expected);
}

TEST_F(DesktopProgramsTest, FromEnvironment_RelativePaths_ArePassedOver) {
  test::Environment environment;
  environment.Set("XDG_CONFIG_HOME", "relative");
  environment.Set("XDG_CONFIG_DIRS", "/one:two::/three");
  environment.Set("XDG_DATA_HOME", "/mine");
  environment.Set("XDG_DATA_DIRS", {});
  environment.Set("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
  const DesktopPlaces places = DesktopPlaces::FromEnvironment();
  EXPECT_EQ(places.ConfigDirs, QStringList({QDir::homePath() + u"/.config"_s, u"/one"_s, u"/three"_s}));
  EXPECT_EQ(places.DataDirs, QStringList({u"/mine"_s, u"/usr/local/share"_s, u"/usr/share"_s}));
  EXPECT_EQ(places.Desktops, QStringList({u"ubuntu"_s, u"GNOME"_s}));
}

}  // namespace
}  // namespace velmora
