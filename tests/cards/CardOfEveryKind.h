// SPDX-License-Identifier: MIT
#pragma once

#include "tests/cards/CardScreens.h"
#include "tests/engine/FailingWrites.h"

namespace velmora::test {

using enum ui::MsgAnswer;

/// The card screens over a file with a field of each kind on page 1: 0 City (text), 1 Size (number), 2 Paid
/// (yes/no), 3 Due (date); on page 2: 4 Street (text).
class CardOfEveryKindTest : public CardScreensTest {
 protected:
  CardOfEveryKindTest() {
    Make(ACardFile()
             .With(TextField(u"City"_s))
             .With(NumberField(u"Size"_s))
             .With(YesNoField(u"Paid"_s))
             .With(DateField(u"Due"_s))
             .With(TextField(u"Street"_s), 2));
    Connect();
  }

  void AddCards(std::initializer_list<std::int32_t> numbers) const {
    for (const std::int32_t number : numbers) file->AddCard(number, u"Card %1"_s.arg(number));
  }
  /// The viewer on card 1, "Card 1" of Paris; there are cards 1, 2 and 5.
  ShowTable& View() {
    file->AddCard(1, u"Card 1"_s,
                  {{u"City"_s, u"Paris"_s},
                   {u"Size"_s, 12.5},
                   {u"Paid"_s, true},
                   {u"Due"_s, u"2024-06-30"_s},
                   {u"Street"_s, u"Rue"_s},
                   {u"Remarks"_s, u"one\ntwo"_s}});
    AddCards({2, 5});
    return OpenViewer(1);
  }
  /// The editor over a file with the cards 1, 2 and 5, of which 2 is the current one.
  EditTable& Edit() {
    AddCards({1, 2, 5});
    Global().CurCard = 2;
    return OpenEditor();
  }
  /// Opens the file again, so that its writes can be made to fail.
  void OpenAgain() const {
    Global().CardDb->Close();
    Global().CardDb = Global().DBEngine().OpenDatabase(file->Path());
  }
  static void Save(const CardForm& form) { Press(form, u"EditData"_s); }
  /// Types into the fields of page 1.
  static void FillIn(const CardForm& form) {
    Type(form.NameText[0], u"Rome"_s);
    Type(form.NameNumber[1], u"77"_s);
    form.NameCheck[2].SetFocus();
    QTest::keyClick(&form.NameCheck[2], Qt::Key_Space);
    TypeDate(form.NameDate[3], u"7/4/2025"_s);
  }
  static void ExpectTips(const CardForm& form, const QList<std::pair<QString, QString>>& tips) {
    for (const auto& [name, tip] : tips) EXPECT_EQ(Find<QWidget>(form, name).toolTip(), tip);
  }
  /// The names of the controls that Tab reaches, one after the other, from the one with the focus.
  static QStringList ReachedByTab(int count) {
    QStringList reached;
    for (int i = 0; i < count; ++i) {
      PressTab(*QApplication::focusWidget());
      reached += QApplication::focusWidget()->objectName();
    }
    return reached;
  }
};

class ShowTableTest : public CardOfEveryKindTest {
 protected:
  [[nodiscard]] static QString Number(const ShowTable& form) {
    return Find<ui::SSPanel>(form, u"IndexText"_s).Caption();
  }
  static void ExpectUnmarked() { EXPECT_EQ(Global().CardChanged, False); }
};

class ShowTableSaveTest : public ShowTableTest {};

class EditTableTest : public CardOfEveryKindTest {
 protected:
  static ui::TextBox& Number(const EditTable& form) { return Box(form, u"IndexText"_s); }
  /// Types the name and leaves its box.
  static void Name(const EditTable& form, const QString& name) {
    Type(*form.NameRecord, name);
    PressTab(*form.NameRecord);
  }
  [[nodiscard]] int Cards() const {
    return static_cast<int>(file->Database().OpenRecordset(u"MainData").RecordCount());
  }
};

class EditTableSaveTest : public EditTableTest {};

}  // namespace velmora::test
