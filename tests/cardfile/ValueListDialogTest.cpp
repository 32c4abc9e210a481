// SPDX-License-Identifier: MIT
#include "cardfile/EnterItem.h"
#include "cardfile/EnterShow.h"
#include "controls/ItemSelector.h"
#include "forms/Buttons.h"
#include "forms/Labels.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "tests/support/CardFiles.h"
#include "tests/support/Dialogs.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Messages.h"

#include <QSignalSpy>

namespace velmora::test {
namespace {

using namespace Qt::StringLiterals;

/// Which of the two value lists is under test.
enum class Kind { Editor, Viewer };

class ValueListTest : public testing::Test {
 protected:
  ValueListTest() {
    FailOnUnexpectedMessages();
    box.SetName(u"NameText"_s, 0);
    box.SetText(u"as it was"_s);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&frame));
  }
  ~ValueListTest() override { ui::SetMsgBoxResponder({}); }

  void Keep(const QStringList& values) const {
    for (const QString& value : values) file.AddRow(u"CityT"_s, {{u"City"_s, value}});
  }
  [[nodiscard]] QStringList Kept() const { return file.Rows(u"CityT"_s); }
  void Open(Kind kind, const std::function<void(ValueListDialog&)>& work, const QString& field = u"City"_s) {
    ValueListField target{.Name = field, .Box = withoutBox ? nullptr : &box};
    InDialog<ValueListDialog>(
        [&] {
          ui::Form* dialog = kind == Kind::Editor ? static_cast<ui::Form*>(new EnterItem(target))
                                                  : static_cast<ui::Form*>(new EnterShow(target));
          dialog->Show(ui::ShowMode::Modal);
        },
        work);
  }

  static ui::TextBox& Entry(const ValueListDialog& dialog) {
    return Find<ui::TextBox>(dialog, u"EnterText"_s);
  }
  static ui::ListBox& List(const ValueListDialog& dialog) { return Find<ui::ListBox>(dialog, u"ListItem"_s); }
  static ui::SSCommand& Button(const ValueListDialog& dialog, const QString& name) {
    return Find<ui::SSCommand>(dialog, name);
  }
  static void Add(const ValueListDialog& dialog, const QString& value) {
    Type(Entry(dialog), value);
    Press(dialog, u"cmdAdd"_s);
  }
  static void Delete(const ValueListDialog& dialog) {
    Press(dialog, dialog.ScreenName() == u"EnterItem"_s ? u"Command2"_s : u"cmdDel"_s);
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).With(TextField(u"Trade"_s)).Make();
  FakeFrame frame;
  ui::TextBox box{&frame};
  bool withoutBox = false;
};

class BothValueListsTest : public ValueListTest, public testing::WithParamInterface<Kind> {};

INSTANTIATE_TEST_SUITE_P(, BothValueListsTest, testing::Values(Kind::Editor, Kind::Viewer),
                         [](const testing::TestParamInfo<Kind>& kind) {
                           return std::string(kind.param == Kind::Editor ? "EnterItem" : "EnterShow");
                         });

}  // namespace

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

TEST_F(ValueListTest, EnterItem_EveryControl_HasItsCaptionAndTip) {
  Open(Kind::Editor, [](const ValueListDialog& dialog) {
    EXPECT_EQ(dialog.ScreenName(), u"EnterItem"_s);
    EXPECT_EQ(Entry(dialog).toolTip(), u"Enter Data and Click Here"_s);
    EXPECT_EQ(Button(dialog, u"cmdAdd"_s).toolTip(), u"Enter Data and Click Here"_s);
    EXPECT_EQ(Button(dialog, u"Command2"_s).Caption(), u"Delete"_s);
    EXPECT_EQ(Button(dialog, u"Command2"_s).toolTip(), u"Choose Item and Click to Delete"_s);
    EXPECT_EQ(Button(dialog, u"Command3"_s).toolTip(), u"Choose Data and Click to Update"_s);
    EXPECT_EQ(Button(dialog, u"CanBut"_s).Caption(), u"Cancel"_s);
    EXPECT_EQ(Button(dialog, u"CanBut"_s).toolTip(), u"Click to Exit with No Changes"_s);
    EXPECT_EQ(Find<ui::Label>(dialog, u"lblField"_s).Caption(), u"City"_s);
    EXPECT_EQ(TabStops(), QStringList({u"EnterText"_s, u"cmdAdd"_s, u"EnterText"_s, u"ListItem"_s,
                                       u"Command2"_s, u"Command3"_s, u"CanBut"_s}));
  });
}

TEST_F(ValueListTest, EnterShow_EveryControl_HasItsCaptionAndTip) {
  Open(Kind::Viewer, [](const ValueListDialog& dialog) {
    EXPECT_EQ(dialog.ScreenName(), u"EnterShow"_s);
    EXPECT_EQ(Entry(dialog).toolTip(), QString());
    EXPECT_EQ(Button(dialog, u"cmdAdd"_s).toolTip(), u"Enter Data and Click Here"_s);
    EXPECT_EQ(Button(dialog, u"cmdDel"_s).Caption(), u"Delete"_s);
    EXPECT_EQ(Button(dialog, u"cmdDel"_s).toolTip(), u"Choose Item and Click to Delete"_s);
    EXPECT_EQ(Button(dialog, u"Command3"_s).toolTip(), u"Choose Items and Click to Update"_s);
    EXPECT_EQ(Button(dialog, u"CanBut"_s).toolTip(), u"Click to Exit with No Changes"_s);
  });
}

TEST_F(ValueListTest, EnterShow_TypedWithBlanks_ComparesTheTrimmedText) {
  Keep({u"Rome"_s});
  Open(Kind::Viewer, [](const ValueListDialog& dialog) {
    Add(dialog, u" Rome "_s);
    EXPECT_EQ(List(dialog).ListCount(), 1);
    EXPECT_EQ(Entry(dialog).Text(), u" Rome "_s);
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

TEST_F(ValueListTest, EnterShow_OtherCase_CountsAsThere) {
  Keep({u"Rome"_s});
  Open(Kind::Viewer, [](const ValueListDialog& dialog) { Add(dialog, u"ROME"_s); });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

TEST_F(ValueListTest, EnterShow_AfterADuplicate_TakesTheNextValue) {
  Keep({u"Rome"_s});
  Open(Kind::Viewer, [](const ValueListDialog& dialog) {
    Add(dialog, u"Rome"_s);
    Add(dialog, u"Oslo"_s);
    EXPECT_EQ(Entry(dialog).Text(), QString());
  });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Oslo"_s}));
}

TEST_F(ValueListTest, EnterItem_OtherBlanksOrCase_CountAsNew) {
  Keep({u"Rome"_s});
  Open(Kind::Editor, [](const ValueListDialog& dialog) {
    Add(dialog, u"Rome "_s);
    Add(dialog, u"ROME"_s);
  });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Rome "_s, u"ROME"_s}));
}

TEST_F(ValueListTest, EnterItem_AfterADuplicate_RefusesEverythingUntilReopened) {
  Keep({u"Rome"_s});
  Open(Kind::Editor, [](const ValueListDialog& dialog) {
    Add(dialog, u"Rome"_s);
    EXPECT_EQ(Entry(dialog).Text(), u"Rome"_s);
    Add(dialog, u"Oslo"_s);
    EXPECT_EQ(Entry(dialog).Text(), u"Oslo"_s);
    EXPECT_EQ(List(dialog).ListCount(), 1);
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
  Open(Kind::Editor, [](const ValueListDialog& dialog) { Add(dialog, u"Oslo"_s); });
  EXPECT_EQ(Kept(), QStringList({u"Rome"_s, u"Oslo"_s}));
}

TEST_F(ValueListTest, EnterItem_ValueAddedHere_CountsAsThere) {
  Open(Kind::Editor, [](const ValueListDialog& dialog) {
    Add(dialog, u"Rome"_s);
    Add(dialog, u"Rome"_s);
    EXPECT_EQ(List(dialog).ListCount(), 1);
  });
  EXPECT_EQ(Kept(), QStringList(u"Rome"_s));
}

}  // namespace velmora::test
