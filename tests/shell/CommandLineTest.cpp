// SPDX-License-Identifier: MIT
#include "shell/CommandLine.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using Ask = CommandLine::Ask;

CommandLine Read(const QStringList& words) { return ReadCommandLine(words, u"/home/ann/cards"_s); }

QString FileOf(const QString& word) { return Read({word}).File; }

}  // namespace

TEST(CommandLineTest, ReadCommandLine_NoWords_RunsOnTheLastFile) {
  EXPECT_EQ(Read({}).Asks, Ask::Run);
  EXPECT_EQ(Read({}).File, QString());
  EXPECT_EQ(FileOf(u""_s), QString());
}

TEST(CommandLineTest, ReadCommandLine_Path_IsTakenFromTheFolderWhenItIsRelative) {
  EXPECT_EQ(FileOf(u"/srv/shops.ddb"_s), u"/srv/shops.ddb"_s);
  EXPECT_EQ(FileOf(u"shops.ddb"_s), u"/home/ann/cards/shops.ddb"_s);
  EXPECT_EQ(FileOf(u"../old cards/1%20.ddb"_s), u"/home/ann/old cards/1%20.ddb"_s);
}

TEST(CommandLineTest, ReadCommandLine_FileAddress_IsReadAsAPath) {
  EXPECT_EQ(FileOf(u"file:///srv/My%20shops%25.ddb"_s), u"/srv/My shops%.ddb"_s);
  EXPECT_EQ(FileOf(u"file://localhost/srv/shops.ddb"_s), u"/srv/shops.ddb"_s);
  EXPECT_EQ(FileOf(u"file:/srv/shops.ddb"_s), u"/srv/shops.ddb"_s);
  EXPECT_EQ(FileOf(u"file:shops.ddb"_s), u"/home/ann/cards/shops.ddb"_s);
  EXPECT_EQ(FileOf(u"FILE:///srv/K%C3%A4se.ddb"_s), u"/srv/Käse.ddb"_s);
  EXPECT_EQ(FileOf(u"./file:shops.ddb"_s), u"/home/ann/cards/file:shops.ddb"_s);
}

TEST(CommandLineTest, ReadCommandLine_HelpOrVersion_PrintsAndDoesNotRun) {
  EXPECT_EQ(Read({u"--help"_s}).Asks, Ask::Print);
  EXPECT_TRUE(Read({u"--help"_s}).Text.startsWith(u"usage: velmora [FILE]\n"_s));
  EXPECT_EQ(Read({u"shops.ddb"_s, u"--version"_s}).Asks, Ask::Print);
  EXPECT_EQ(Read({u"--version"_s}).Text, u"Velmora %1\n"_s.arg(QStringLiteral(VELMORA_VERSION)));
}

TEST(CommandLineTest, ReadCommandLine_OptionsOfTheToolkit_ArePassedOver) {
  const CommandLine line = Read({u"-platform"_s, u"offscreen"_s, u"-session"_s, u"17"_s, u"--style=fusion"_s,
                                 u"-reverse"_s, u"shops.ddb"_s});
  EXPECT_EQ(line.Asks, Ask::Run);
  EXPECT_EQ(line.File, u"/home/ann/cards/shops.ddb"_s);
}

TEST(CommandLineTest, ReadCommandLine_UnknownOptionOrTwoFiles_IsRefused) {
  EXPECT_EQ(Read({u"--frobnicate"_s}).Asks, Ask::Refuse);
  EXPECT_TRUE(Read({u"--frobnicate"_s}).Text.contains(u"--frobnicate"_s));
  EXPECT_EQ(Read({u"a.ddb"_s, u"b.ddb"_s}).Asks, Ask::Refuse);
}

TEST(CommandLineTest, ReadCommandLine_BehindTwoDashes_EverythingIsAFile) {
  EXPECT_EQ(Read({u"--"_s, u"--help"_s}).File, u"/home/ann/cards/--help"_s);
  EXPECT_EQ(FileOf(u"-"_s), u"/home/ann/cards/-"_s);
}

TEST(CommandLineTest, WithoutDisplay_FileMissing_TellsItWithExitCode2) {
  const NoDisplay told = WithoutDisplay(Read({u"/nowhere/shops.ddb"_s}));
  EXPECT_EQ(told.ExitCode, 2);
  EXPECT_EQ(told.Text, u"velmora: there is no file /nowhere/shops.ddb\n"_s);
}

TEST(CommandLineTest, WithoutDisplay_NoFileOrOneThatIsThere_TellsThatThereIsNoDisplay) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(u"shops.ddb"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(WithoutDisplay(Read({})).ExitCode, 1);
  EXPECT_EQ(WithoutDisplay(Read({file.fileName()})).ExitCode, 1);
}
