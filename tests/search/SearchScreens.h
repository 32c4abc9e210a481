// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Default.h"
#include "forms/FlexGrid.h"
#include "forms/Notice.h"
#include "forms/SSTab.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "tests/support/CardFiles.h"
#include "tests/support/Dialogs.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Messages.h"

#include <memory>

namespace velmora::test {

using namespace Qt::StringLiterals;

/// A search screen in a frame, over a real card file with these cards and contacts; some contacts belong to
/// no card.
class SearchScreensTest : public testing::Test {
 protected:
  SearchScreensTest() : file(ACardFile().Named(u"Company"_s).With(TextField(u"Phone"_s)).Make()) {
    FailOnUnexpectedMessages();
    Global().NoFile = False;
    const auto card = [this](std::int32_t number, const QString& name, const QString& phone) {
      file.AddCard(number, name, {{u"Phone"_s, phone}});
    };
    card(7, u"Łódź Foto"_s, u"030-0074321"_s);
    card(12, u"Bólido Comidas"_s, u"(91) 555 22 82"_s);
    card(112, u"Ann's"_s, u"0621-08460"_s);
    card(312, u"Hanna GmbH"_s, u"4444"_s);
    const auto contact = [this](std::int32_t number, const QString& name, const QString& last,
                                const QString& phone, const QString& fax) {
      file.AddContact(number, name, {{u"1"_s, last}, {u"7"_s, phone}, {u"10"_s, fax}});
    };
    contact(312, u"Maria"_s, u"Anders"_s, u"030-0074321"_s, u"030-0076545"_s);
    contact(7, u"Zoé"_s, u"Moreno"_s, u"(5) 555-3932"_s, {});
    contact(12, u"Ana"_s, u"Trujillo"_s, u"(5) 555-4729"_s, u"12 34"_s);
    contact(99, u"Nobody"_s, u"Else"_s, u"123456"_s, {});
    frame = std::make_unique<FakeFrame>();
  }
  ~SearchScreensTest() override {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    frame.reset();
    ui::SetMsgBoxResponder({});
  }

  template <typename T>
  T& Show() {
    auto& screen = ui::Default<T>();
    screen.Show();
    QApplication::processEvents();
    m_screen = &screen;
    return screen;
  }
  template <typename T>
  [[nodiscard]] T& In(const QString& name) const {
    return Find<T>(*m_screen, name);
  }
  void PressButton(const QString& name) const { Press(*m_screen, name); }
  [[nodiscard]] ui::FlexGrid& Grid(const QString& name) const { return In<ui::FlexGrid>(name); }
  [[nodiscard]] ui::TextBox& Box(const QString& name) const { return In<ui::TextBox>(name); }
  [[nodiscard]] ui::SSRibbon& Ribbon(const QString& name) const { return In<ui::SSRibbon>(name); }
  [[nodiscard]] ui::SSTab& Tabs() const { return In<ui::SSTab>(u"SSTab1"_s); }
  void TypeInto(const QString& box, const QString& text) const { Type(Box(box), text); }
  /// A row of a grid, row 0 the headings, its cells joined by '|'.
  [[nodiscard]] QString RowText(const QString& grid, int row) const {
    QStringList cells;
    for (int column = 0; column < Grid(grid).Cols(); ++column) cells += Grid(grid).TextMatrix(row, column);
    return cells.join(u'|');
  }
  /// A column from the first row to the last.
  [[nodiscard]] QString Column(const QString& grid, int column = 0) const {
    QStringList cells;
    for (int row = 1; row < Grid(grid).Rows(); ++row) cells += Grid(grid).TextMatrix(row, column);
    return cells.join(u',');
  }
  void DoubleClickRow(const QString& name, int row) const {
    ui::FlexGrid& grid = Grid(name);
    QApplication::processEvents();
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {},
                       grid.visualRect(grid.model()->index(row - 1, 0)).center());
  }
  /// Presses a button that says something in a message and nothing else.
  void ExpectMessage(const QString& text, ui::MsgIcon icon, const std::function<void()>& act) const {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    act();
    EXPECT_EQ(answers.Asked().value(0).Text, text);
    EXPECT_EQ(answers.Asked().value(0).Icon, icon);
    EXPECT_EQ(answers.Asked().value(0).Buttons, ui::MsgButtons::Ok);
  }
  struct Told {
    QString Control;
    QString Caption;
    QString Tip;
  };
  void ExpectWords(const QList<Told>& words) const {
    for (const Told& told : words) {
      const auto& widget = In<QWidget>(told.Control);
      EXPECT_EQ(widget.toolTip(), told.Tip) << told.Control.toStdString();
      const auto* button = qobject_cast<const QAbstractButton*>(&widget);
      if (button == nullptr || told.Caption.isNull()) continue;
      EXPECT_EQ(button->text(), told.Caption) << told.Control.toStdString();
    }
  }

  CardFile file;
  std::unique_ptr<FakeFrame> frame;

 private:
  QPointer<QWidget> m_screen;
};

}  // namespace velmora::test
