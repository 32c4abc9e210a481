// SPDX-License-Identifier: MIT
#include "tests/cardfile/ValueListScreens.h"

namespace velmora::test {
namespace {

using Kind = ValueListKind;

class BothValueListsTest : public ValueListTest, public testing::WithParamInterface<Kind> {};

INSTANTIATE_TEST_SUITE_P(, BothValueListsTest, testing::Values(Kind::Editor, Kind::Viewer),
                         [](const testing::TestParamInfo<Kind>& kind) {
                           return std::string(kind.param == Kind::Editor ? "EnterItem" : "EnterShow");
                         });

TEST_P(BothValueListsTest, Load_Values_StandInTheOrderOfTheirRows) {
  Keep({u"Rome"_s, u"Oslo"_s, u"Bern"_s, u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), u"Update Card Fields"_s);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Rome"_s, u"Oslo"_s, u"Bern"_s, u"Rome"_s}));
    EXPECT_EQ(List(dialog).ListIndex(), -1);
    EXPECT_TRUE(Entry(dialog).hasFocus());
  });
}

TEST_P(BothValueListsTest, Load_MissingTable_LeavesTheListEmpty) {
  Open(
      GetParam(),
      [](const ValueListDialog& dialog) {
        EXPECT_EQ(List(dialog).ListCount(), 0);
        Add(dialog, u"Rome"_s);
        EXPECT_EQ(List(dialog).ListCount(), 0);
        EXPECT_EQ(Entry(dialog).Text(), u"Rome"_s);
      },
      u"Nothing"_s);
}

TEST_P(BothValueListsTest, Add_NewValue_IsStoredAndListedAndEmptiesTheBox) {
  Open(GetParam(), [this](const ValueListDialog& dialog) {
    Add(dialog, u"Rome"_s);
    EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
    Add(dialog, u"Oslo"_s);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Rome"_s, u"Oslo"_s}));
    EXPECT_EQ(Entry(dialog).Text(), QString());
  });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Oslo"_s}));
}

TEST_P(BothValueListsTest, Add_ByEnter_DoesTheSameAndStaysInTheBox) {
  Open(GetParam(), [](const ValueListDialog& dialog) {
    QTest::keyClicks(&Entry(dialog), u"Rome"_s);
    QTest::keyClick(&Entry(dialog), Qt::Key_Return);
    QTest::keyClicks(&Entry(dialog), u"Oslo"_s);
    QTest::keyClick(&Entry(dialog), Qt::Key_Enter);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Rome"_s, u"Oslo"_s}));
    EXPECT_TRUE(Entry(dialog).hasFocus());
  });
}

TEST_P(BothValueListsTest, Add_Apostrophe_IsRefusedWithTheTextSelected) {
  MessageAnswers answers({ui::MsgAnswer::Ok});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    Add(dialog, u"O'Hara"_s);
    EXPECT_EQ(List(dialog).ListCount(), 0);
    EXPECT_TRUE(Entry(dialog).hasFocus());
    EXPECT_EQ(Entry(dialog).selectedText(), u"O'Hara"_s);
  });
  EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_P(BothValueListsTest, Add_BlanksAlone_DoesNothing) {
  Open(GetParam(), [](const ValueListDialog& dialog) {
    Add(dialog, u"   "_s);
    EXPECT_EQ(List(dialog).ListCount(), 0);
    EXPECT_EQ(Entry(dialog).Text(), u"   "_s);
  });
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_P(BothValueListsTest, Add_BlanksAround_AreStored) {
  Open(GetParam(), [](const ValueListDialog& dialog) { Add(dialog, u" Rome "_s); });
  EXPECT_EQ(Kept(), QStringList(u" Rome "_s));
}

TEST_P(BothValueListsTest, Add_TooLongForTheTable_LeavesAllAsItWas) {
  const QString tooLong(300, u'x');
  Open(GetParam(), [&](const ValueListDialog& dialog) {
    Entry(dialog).SetText(tooLong);
    Press(dialog, u"cmdAdd"_s);
    EXPECT_EQ(List(dialog).ListCount(), 0);
    EXPECT_EQ(Entry(dialog).Text(), tooLong);
    Add(dialog, u"Rome"_s);
    EXPECT_EQ(Lines(List(dialog)), QStringList(u"Rome"_s));
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

TEST_P(BothValueListsTest, Delete_CurrentLine_GoesFromTableAndList) {
  Keep({u"Rome"_s, u"Oslo"_s, u"Bern"_s});
  file.AddCard(1, u"Ann"_s, {{u"City"_s, u"Oslo"_s}});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 1);
    Delete(dialog);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Rome"_s, u"Bern"_s}));
    EXPECT_EQ(List(dialog).ListIndex(), -1);
  });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Bern"_s}));
  EXPECT_EQ(file.Rows(u"SELECT City FROM MainData"_s), QStringList(u"Oslo"_s));
}

TEST_P(BothValueListsTest, Delete_NothingCurrent_DoesNothing) {
  Keep({u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    Delete(dialog);
    EXPECT_EQ(List(dialog).ListCount(), 1);
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

TEST_P(BothValueListsTest, Delete_ValueWithAnApostropheFromAnotherProgram_Goes) {
  Keep({u"L'Aquila"_s, u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    Delete(dialog);
    EXPECT_EQ(Lines(List(dialog)), QStringList(u"Rome"_s));
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

TEST_P(BothValueListsTest, Delete_ValueThatReadsAsACondition_GoesAlone) {
  Keep({u"Rome"_s, u"x' OR 'a'='a"_s, u"Oslo"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 1);
    Delete(dialog);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Rome"_s, u"Oslo"_s}));
  });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Oslo"_s}));
}

TEST_P(BothValueListsTest, Delete_OtherCaseInTheTable_GoesWithTheLine) {
  Keep({u"Rome"_s, u"ROME"_s, u"Oslo"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    Delete(dialog);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"ROME"_s, u"Oslo"_s}));
  });
  EXPECT_EQ(Kept(), QStringList(u"Oslo"_s));
}

TEST_P(BothValueListsTest, Delete_ThenAddTheSame_StoresItAgain) {
  Keep({u"Rome"_s, u"Oslo"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    Delete(dialog);
    Add(dialog, u"Rome"_s);
    EXPECT_EQ(Lines(List(dialog)), QStringList({u"Oslo"_s, u"Rome"_s}));
  });
  EXPECT_EQ(Kept(), QStringList({u"Oslo"_s, u"Rome"_s}));
}

TEST_P(BothValueListsTest, Update_TwoLines_WritesThemJoinedByOneBlank) {
  Keep({u"Rome"_s, u"Oslo"_s, u"Bern"_s});
  const QSignalSpy changes(&box, &ui::TextBox::Change);
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 2);
    ClickLine(List(dialog), 0);
    Press(dialog, u"Command3"_s);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(box.Text(), u"Rome Bern"_s);
  EXPECT_EQ(changes.count(), 1);
}

TEST_P(BothValueListsTest, Update_SameText_CountsAsTheUsersChange) {
  Keep({u"as it was"_s});
  const QSignalSpy changes(&box, &ui::TextBox::Change);
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    Press(dialog, u"Command3"_s);
  });
  EXPECT_EQ(changes.count(), 1);
}

TEST_P(BothValueListsTest, Update_NothingCurrent_ClosesAndLeavesTheField) {
  Keep({u"Rome"_s});
  const QSignalSpy changes(&box, &ui::TextBox::Change);
  Open(GetParam(), [](const ValueListDialog& dialog) {
    Press(dialog, u"Command3"_s);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(box.Text(), u"as it was"_s);
  EXPECT_EQ(changes.count(), 0);
}

TEST_P(BothValueListsTest, Update_CurrentLineNotChosen_EmptiesTheField) {
  Keep({u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    ClickLine(List(dialog), 0);
    ASSERT_FALSE(List(dialog).Selected(0));
    Press(dialog, u"Command3"_s);
  });
  EXPECT_EQ(box.Text(), QString());
}

TEST_P(BothValueListsTest, Update_ManyLines_WritesMoreThanTheColumnHolds) {
  QStringList values;
  for (int i = 0; i < 30; ++i) values += QString(20, QChar(u'a' + i % 26));
  Keep(values);
  Open(GetParam(), [](const ValueListDialog& dialog) {
    for (int line = 0; line < 30; ++line) ClickLine(List(dialog), line);
    Press(dialog, u"Command3"_s);
  });
  EXPECT_EQ(box.Text(), values.join(u' '));
}

TEST_P(BothValueListsTest, Update_WithoutABoxToFill_StaysOpen) {
  withoutBox = true;
  Keep({u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    ClickLine(List(dialog), 0);
    Press(dialog, u"Command3"_s);
    EXPECT_FALSE(dialog.IsClosing());
  });
}

TEST_P(BothValueListsTest, Cancel_AfterAddAndChoice_KeepsTheValueAndTheField) {
  Open(GetParam(), [](const ValueListDialog& dialog) {
    Add(dialog, u"Rome"_s);
    ClickLine(List(dialog), 0);
    Press(dialog, u"CanBut"_s);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
  EXPECT_EQ(box.Text(), u"as it was"_s);
}

TEST_P(BothValueListsTest, Escape_Pressed_ClosesWithoutAWord) {
  Open(GetParam(), [](const ValueListDialog& dialog) {
    QTest::keyClick(&Entry(dialog), Qt::Key_Escape);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_EQ(box.Text(), u"as it was"_s);
}

TEST_P(BothValueListsTest, Selector_Typing_ChoosesTheFirstLineThatBeginsSo) {
  Keep({u"Rome"_s, u"Oslo"_s, u"Odense"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    QTest::keyClicks(&Find<ItemSelector>(dialog, u"ItemSelector1"_s).EnterText(), u"od"_s);
    EXPECT_EQ(List(dialog).ListIndex(), 2);
    Press(dialog, u"Command3"_s);
  });
  EXPECT_EQ(box.Text(), u"Odense"_s);
}

TEST_P(BothValueListsTest, Selector_WiderDialog_StaysAsWideAsTheList) {
  Open(GetParam(), [](ValueListDialog& dialog) {
    dialog.resize(dialog.width() + 150, dialog.height() + 50);
    QApplication::processEvents();
    const auto& selector = Find<ItemSelector>(dialog, u"ItemSelector1"_s);
    EXPECT_NEAR(selector.width(), List(dialog).width(), 1);
    EXPECT_NEAR(selector.EnterText().width(), List(dialog).width(), 1);
    EXPECT_EQ(selector.Height(), 315);
  });
}

TEST_P(BothValueListsTest, Keys_Alone_AddChooseAndUpdate) {
  Keep({u"Rome"_s});
  Open(GetParam(), [](const ValueListDialog& dialog) {
    QTest::keyClicks(&Entry(dialog), u"Oslo"_s);
    QTest::keyClick(&Entry(dialog), Qt::Key_Return);
    List(dialog).SetFocus();
    QTest::keyClick(&List(dialog), Qt::Key_Down);
    QTest::keyClick(&List(dialog), Qt::Key_Down);
    ASSERT_EQ(List(dialog).ListIndex(), 1);
    if (!List(dialog).Selected(1)) QTest::keyClick(&List(dialog), Qt::Key_Space);
    QTest::keyClick(&Button(dialog, u"Command3"_s), Qt::Key_Return);
    EXPECT_TRUE(dialog.IsClosing());
  });
  EXPECT_TRUE(box.Text().endsWith(u"Oslo"_s));
}

}  // namespace
}  // namespace velmora::test
