// SPDX-License-Identifier: MIT
#include "base/system/Shell.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class ShellTest : public testing::Test {
 protected:
  ~ShellTest() override { SetStarter({}); }

  QString Make(const QString& name, const QByteArray& content, bool executable) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    if (executable) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
  }
  /// A program that writes where it runs and what it was given into "told", each on a line.
  [[nodiscard]] QString Teller() const {
    const QByteArray told = Path(u"told"_s).toUtf8();
    return Make(u"tell it"_s,
                "#!/bin/sh\n{ pwd; for word; do printf '%s\\n' \"$word\"; done; } > '" + told +
                    ".new'\nmv '" + told + ".new' '" + told + "'\n",
                true);
  }
  [[nodiscard]] QString Told() const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Path(u"told"_s)); }));
    QFile file(Path(u"told"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
  }
  /// What would be started in place of it.
  QList<ProgramStart>& Recorded() {
    SetStarter([this](const ProgramStart& start) {
      m_recorded += start;
      return ProcessNumber(7);
    });
    return m_recorded;
  }
  [[nodiscard]] QString Path(const QString& name) const { return m_dir.filePath(name); }

 private:
  QTemporaryDir m_dir;
  QList<ProgramStart> m_recorded;
};

TEST_F(ShellTest, Shell_Arguments_ArriveAsTheyAre) {
  EXPECT_GT(Shell(Teller(), {u"a b"_s, u"$(echo no) ; *"_s, u"L'Aquila \"x\""_s}), 0);
  EXPECT_EQ(Told(), QDir(QDir::homePath()).canonicalPath() + u"\na b\n$(echo no) ; *\nL'Aquila \"x\"\n"_s);
}

TEST_F(ShellTest, Shell_DesktopEntry_StartsItsCommandInItsDirectory) {
  const QString teller = Teller();
  const QString entry = Make(
      u"tell.desktop"_s,
      "[Desktop Entry]\nType=Application\nName=Tell\nPath=/\nExec=\"" + teller.toUtf8() + "\" --open %u\n",
      false);
  Shell(entry, {u"https://velmora.example"_s});
  EXPECT_EQ(Told(), u"/\n--open\nhttps://velmora.example\n"_s);
}

TEST_F(ShellTest, Shell_WhatCannotBeStarted_Throws) {
  EXPECT_THROW(Shell(QString()), StartFailure);
  EXPECT_THROW(Shell(Path(u"missing"_s)), StartFailure);
  EXPECT_THROW(Shell(Path(u"."_s)), StartFailure);
  EXPECT_THROW(Shell(Make(u"plain.txt"_s, "text", false)), StartFailure);
  EXPECT_THROW(Shell(Make(u"broken.desktop"_s, "[Desktop Entry]\nExec=\"open\n", false)), StartFailure);
  EXPECT_THROW(Shell(Path(u"missing.desktop"_s)), StartFailure);
}

TEST_F(ShellTest, Shell_WithAStarter_StartsNothingItself) {
  const QString teller = Teller();
  EXPECT_EQ((Recorded(), Shell(teller, {u"x"_s})), 7);
  const QList<ProgramStart> expected{{.Program = teller, .Arguments = {u"x"_s}, .Directory = {}}};
  EXPECT_EQ(Recorded(), expected);
  EXPECT_FALSE(QFile::exists(Path(u"told"_s)));
}

TEST_F(ShellTest, CanStart_ProgramsAndEntriesForThem_AreTold) {
  EXPECT_TRUE(CanStart(Teller()));
  EXPECT_TRUE(
      CanStart(Make(u"good.desktop"_s, "[Desktop Entry]\nType=Application\nName=A\nExec=true %f\n", false)));
  EXPECT_FALSE(CanStart(Make(u"empty.desktop"_s, "[Desktop Entry]\nType=Application\nName=A\n", false)));
  EXPECT_FALSE(CanStart(Make(
      u"term.desktop"_s, "[Desktop Entry]\nType=Application\nName=A\nExec=true\nTerminal=true\n", false)));
  EXPECT_FALSE(CanStart(Make(u"link.desktop"_s, "[Desktop Entry]\nType=Link\nName=A\nExec=true\n", false)));
  EXPECT_FALSE(CanStart(Make(u"letter.txt"_s, "Dear", false)));
  EXPECT_FALSE(CanStart(QDir::tempPath()));
  EXPECT_FALSE(CanStart(Path(u"missing"_s)));
  EXPECT_FALSE(CanStart({}));
}

}  // namespace
}  // namespace velmora
