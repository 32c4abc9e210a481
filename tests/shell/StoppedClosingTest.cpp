// SPDX-License-Identifier: MIT
// What asked for the closing of the screens stops when one of them refuses.
#include "forms/Form.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// A screen that may refuse to close, and counts how often it was asked.
class AskingScreen final : public ui::Form {
 public:
  explicit AskingScreen(const QString& name) : Form(name, name) { Load(); }

  int Asked = 0;
  bool Refuses = true;

 protected:
  void OnQueryUnload(bool& cancel) override {
    ++Asked;
    cancel = Refuses;
  }
};

class StoppedClosingTest : public MainFixture {
 protected:
  ~StoppedClosingTest() override {
    for (AskingScreen* screen : m_screens) screen->Refuses = false;
  }
  AskingScreen& Open(const QString& name, bool refuses = true) {
    auto* screen = new AskingScreen(name);
    screen->Refuses = refuses;
    if (refuses) m_screens += screen;
    return *screen;
  }

 private:
  QList<AskingScreen*> m_screens;
};

TEST_F(StoppedClosingTest, UnloadOtherForms_ScreenRefuses_IsAskedOnce) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  AskingScreen& refusing = Open(u"refusing"_s);
  Open(u"behind"_s, false);
  AskingScreen& second = Open(u"second"_s);
  EXPECT_FALSE(frame.UnloadOtherForms());
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(second.Asked, 1);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"refusing"_s, u"second"_s}));
}

TEST_F(StoppedClosingTest, UnloadOtherForms_AllClose_SaysSo) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  Open(u"one"_s, false);
  Open(u"two"_s, false);
  EXPECT_TRUE(frame.UnloadOtherForms());
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(StoppedClosingTest, Open_ScreenRefuses_KeepsTheOpenFileAndItsPath) {
  const QString first = MakeFile(u"a.ddb"_s, {1});
  const QString second = MakeFile(u"b.ddb"_s, {1, 2});
  Main& frame = StartOn(first);
  const AskingScreen& refusing = Open(u"refusing"_s);
  ChooseFiles({second});
  Trigger(u"open_new"_s);
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(Global().FilePath, first);
  EXPECT_EQ(Global().CardDb->Name(), first);
  EXPECT_EQ(frame.windowTitle(), first);
  EXPECT_FALSE(StoredRecent().contains(second));
}

TEST_F(StoppedClosingTest, RecentEntry_ScreenRefuses_KeepsTheOpenFileAndItsPath) {
  const QString first = MakeFile(u"a.ddb"_s, {1});
  const QString second = MakeFile(u"b.ddb"_s, {1, 2});
  StartOn(second);
  Trigger(u"exit"_s);
  Main& frame = StartOn(first);
  const AskingScreen& refusing = Open(u"refusing"_s);
  Trigger(u"hShortName(0)"_s);
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(Global().FilePath, first);
  EXPECT_EQ(frame.windowTitle(), first);
}

TEST_F(StoppedClosingTest, ShowCardAndTheFieldEditor_ScreenRefuses_AskOnceAndOpenNothing) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  AskingScreen& refusing = Open(u"refusing"_s);
  frame.ShowCard();
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"refusing"_s}));
  frame.WhatWasCmdEditFieldsClick();
  EXPECT_EQ(refusing.Asked, 2);
}

}  // namespace
}  // namespace velmora
