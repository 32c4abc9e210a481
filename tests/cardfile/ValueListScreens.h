// SPDX-License-Identifier: MIT
#pragma once

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

using namespace Qt::StringLiterals;

/// Which of the two value lists is under test.
enum class ValueListKind { Editor, Viewer };

/// A value list over a box of a frame, and the table behind it.
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
  void Open(ValueListKind kind, const std::function<void(ValueListDialog&)>& work,
            const QString& field = u"City"_s) {
    ValueListField target{.Name = field, .Box = withoutBox ? nullptr : &box};
    InDialog<ValueListDialog>(
        [&] {
          ui::Form* dialog = kind == ValueListKind::Editor ? static_cast<ui::Form*>(new EnterItem(target))
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

}  // namespace velmora::test
