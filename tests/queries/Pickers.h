// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ItemSelector.h"
#include "forms/ComboBox.h"
#include "queries/DigitBox.h"
#include "queries/EnterQuery.h"
#include "queries/KnownValues.h"
#include "queries/SelectQ.h"
#include "queries/frmBoolSel.h"
#include "queries/frmSelNum.h"
#include "tests/queries/QueryScreens.h"

namespace velmora::test {

/// The pickers of conditions over the query screen, with a field for each of them.
class PickersTest : public QueryScreensTest {
 protected:
  PickersTest() {
    Make(ACardFile()
             .With(TextField(u"City"_s))
             .With(NumberField(u"Turnover"_s))
             .With(YesNoField(u"Active"_s)));
    screen = &Open();
  }
  enum Element { City, Turnover, Active };

  void Keep(const QStringList& values) const {
    for (const QString& value : values) file->AddRow(u"CityT"_s, {{u"City"_s, value}});
  }
  void InText(const std::function<void(SelectQ&)>& work) const {
    InDialog<SelectQ>([this] { Click(screen->butField[City]); }, work);
  }
  void InNumber(const std::function<void(frmSelNum&)>& work) const {
    InDialog<frmSelNum>([this] { Click(screen->butField[Turnover]); }, work);
  }
  void InYesNo(const std::function<void(frmBoolSel&)>& work) const {
    InDialog<frmBoolSel>([this] { Click(screen->butField[Active]); }, work);
  }
  /// The conditions that stand on the query screen.
  [[nodiscard]] QStringList Conditions(Element field) const { return Lines(screen->lstElement[field]); }

  static ui::TextBox& Box(const SelectQ& picker, int index) {
    return Find<ui::TextBox>(picker, u"txtSelect(%1)"_s.arg(index));
  }
  static ui::ListBox& Values(const SelectQ& picker) { return Find<ui::ListBox>(picker, u"List1"_s); }
  static ui::ListBox& Values(const EnterQuery& list) { return Find<ui::ListBox>(list, u"ListItem"_s); }
  static DigitBox& Number(const frmSelNum& picker, const QString& name) {
    return Find<DigitBox>(picker, name);
  }
  static void Choose(const frmSelNum& picker, const QString& name, int line) {
    auto& sign = Find<ui::ComboBox>(picker, name);
    sign.setFocus();
    for (int step = -1; step < line; ++step) QTest::keyClick(&sign, Qt::Key_Down);
    ASSERT_EQ(sign.ListIndex(), line);
  }
  static void KeyIn(DigitBox& box, const QString& keys) {
    box.setFocus();
    QTest::keyClicks(&box, keys);
  }

  QPointer<QueryN> screen;
};

}  // namespace velmora::test
