// SPDX-License-Identifier: MIT
#include "base/system/ExecLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// The words of a command line, "fault" for one that can't be understood.
QStringList Words(QStringView line, const QStringList& files = {}) {
  const ExecValues values{.Files = files,
                          .Name = u"The Editor"_s,
                          .Icon = u"edit"_s,
                          .Entry = u"/usr/share/applications/edit.desktop"_s};
  return FillExecLine(line, values).value_or(QStringList{u"fault"_s});
}

using Texts = QStringList;

TEST(ExecLineTest, FillExecLine_BlanksPartAndQuotesKeepTogether) {
  EXPECT_EQ(Words(u"edit  --new\t-x"), Texts({u"edit"_s, u"--new"_s, u"-x"_s}));
  EXPECT_EQ(Words(u"\"/opt/my editor/edit\" --name=\"a b\""),
            Texts({u"/opt/my editor/edit"_s, u"--name=a b"_s}));
  EXPECT_EQ(Words(u"edit \"\" x"), Texts({u"edit"_s, QString(), u"x"_s}));
}

TEST(ExecLineTest, FillExecLine_EscapesBetweenQuotes_AreResolved) {
  EXPECT_EQ(Words(uR"(edit "say \"hi\" \$HOME \`x\` \\ \n")"),
            Texts({u"edit"_s, uR"(say "hi" $HOME `x` \ \n)"_s}));
}

TEST(ExecLineTest, FillExecLine_ShellSigns_AreText) {
  EXPECT_EQ(Words(u"edit $(reboot) ;rm *"), Texts({u"edit"_s, u"$(reboot)"_s, u";rm"_s, u"*"_s}));
}

TEST(ExecLineTest, FillExecLine_CodesForAFile_TakeTheFirst) {
  const QStringList files{u"/tmp/a b.txt"_s, u"/tmp/c.txt"_s};
  EXPECT_EQ(Words(u"edit %f", files), Texts({u"edit"_s, u"/tmp/a b.txt"_s}));
  EXPECT_EQ(Words(u"edit %u", files), Texts({u"edit"_s, u"file:///tmp/a%20b.txt"_s}));
  EXPECT_EQ(Words(u"edit --open=%f", files), Texts({u"edit"_s, u"--open=/tmp/a b.txt"_s}));
  EXPECT_EQ(Words(u"edit \"%f\"", files), Texts({u"edit"_s, u"/tmp/a b.txt"_s}));
}

TEST(ExecLineTest, FillExecLine_CodesForFiles_TakeAll) {
  const QStringList files{u"/tmp/a"_s, u"https://velmora.example"_s};
  EXPECT_EQ(Words(u"edit %F -x", files),
            Texts({u"edit"_s, u"/tmp/a"_s, u"https://velmora.example"_s, u"-x"_s}));
  EXPECT_EQ(Words(u"edit %U", files), Texts({u"edit"_s, u"file:///tmp/a"_s, u"https://velmora.example"_s}));
}

TEST(ExecLineTest, FillExecLine_NoCodeForFiles_PutsThemAtTheEnd) {
  EXPECT_EQ(Words(u"edit -x", {u"/tmp/a"_s}), Texts({u"edit"_s, u"-x"_s, u"/tmp/a"_s}));
}

TEST(ExecLineTest, FillExecLine_CodesWithoutFiles_LeaveNothing) {
  EXPECT_EQ(Words(u"edit %f %u %F %U end"), Texts({u"edit"_s, u"end"_s}));
}

TEST(ExecLineTest, FillExecLine_NameIconAndEntry_AreFilledIn) {
  EXPECT_EQ(Words(u"edit %i --title %c %k"),
            Texts({u"edit"_s, u"--icon"_s, u"edit"_s, u"--title"_s, u"The Editor"_s,
                   u"/usr/share/applications/edit.desktop"_s}));
  EXPECT_EQ(FillExecLine(u"edit %i", {}), Texts({u"edit"_s}));
}

TEST(ExecLineTest, FillExecLine_PercentAndOldCodes) {
  EXPECT_EQ(Words(u"edit 100%% %d%D%n%N%v%m"), Texts({u"edit"_s, u"100%"_s}));
}

TEST(ExecLineTest, FillExecLine_Faults_GiveNothing) {
  const Texts fault{u"fault"_s};
  EXPECT_EQ(Words(u""), fault);
  EXPECT_EQ(Words(u"   "), fault);
  EXPECT_EQ(Words(u"\"\" x"), fault);
  EXPECT_EQ(Words(u"edit \"open"), fault);
  EXPECT_EQ(Words(u"edit %z"), fault);
  EXPECT_EQ(Words(u"edit %"), fault);
}

TEST(ExecLineTest, FillExecLine_UnknownCodeBetweenQuotes_IsText) {
  EXPECT_EQ(Words(u"run \"date +%Y\""), Texts({u"run"_s, u"date +%Y"_s}));
}

}  // namespace
