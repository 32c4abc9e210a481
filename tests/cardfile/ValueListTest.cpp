// SPDX-License-Identifier: MIT
#include "tests/cardfile/ValueListScreens.h"

namespace velmora::test {
namespace {

using Kind = ValueListKind;

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

}  // namespace
}  // namespace velmora::test
