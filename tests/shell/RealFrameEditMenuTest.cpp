// SPDX-License-Identifier: MIT
// The Edit menu by keys, on the box that has the focus.
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class RealFrameEditMenuTest : public RealFrame {
 protected:
  /// The box with the city of the card, holding the focus and a selection of its first letters.
  QLineEdit& SelectedCity(int letters) {
    RunOn(MakeFile(u"a.ddb"_s, {1}));
    ChangeCity(u"ShowTable"_s, u"Amsterdam"_s);
    auto& city = In<QLineEdit>(u"ShowTable"_s, u"NameText(0)"_s);
    city.setSelection(0, letters);
    QGuiApplication::clipboard()->setText(u"before"_s);
    return city;
  }
  /// Alt+E, down to the entry, Enter: each key goes where the keys go.
  void ChooseByKeys(const QString& entry) {
    QTest::keyClick(m_main.get(), Qt::Key_E, Qt::AltModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << "no menu came up";
    ASSERT_EQ(menu->objectName(), u"hEdit"_s);
    for (int steps = 0; steps < 12; ++steps) {
      if (menu->activeAction() != nullptr && menu->activeAction()->objectName() == entry) break;
      QTest::keyClick(menu, Qt::Key_Down);
    }
    ASSERT_NE(menu->activeAction(), nullptr);
    ASSERT_EQ(menu->activeAction()->objectName(), entry);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
  void DropChange() const {
    const MessageAnswers answers({ui::MsgAnswer::No});
    m_main->UnloadOtherForms();
  }
};

TEST_F(RealFrameEditMenuTest, CtrlX_SelectedText_CutsThatOnce) {
  QLineEdit& city = SelectedCity(5);
  QTest::keyClick(&city, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(city.text(), u"rdam"_s);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Amste"_s);
  QTest::keyClick(&city, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(city.text(), u"Amsterdam"_s);
  DropChange();
}

TEST_F(RealFrameEditMenuTest, AltE_CutOnSelectedText_CutsItAndKeepsTheFocus) {
  const QLineEdit& city = SelectedCity(5);
  ChooseByKeys(u"hCut"_s);
  EXPECT_EQ(city.text(), u"rdam"_s);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Amste"_s);
  EXPECT_TRUE(city.hasFocus());
  DropChange();
}

TEST_F(RealFrameEditMenuTest, AltE_EachEntry_WorksOnTheBoxBehindTheMenu) {
  const QLineEdit& city = SelectedCity(5);
  ChooseByKeys(u"hCopy"_s);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Amste"_s);
  EXPECT_EQ(city.text(), u"Amsterdam"_s);
  ChooseByKeys(u"hDel"_s);
  EXPECT_EQ(city.text(), u"rdam"_s);
  ChooseByKeys(u"hCancel"_s);
  EXPECT_EQ(city.text(), u"Amsterdam"_s);
  ChooseByKeys(u"hSelAll"_s);
  EXPECT_EQ(city.selectedText(), u"Amsterdam"_s);
  ChooseByKeys(u"hPaste"_s);
  EXPECT_EQ(city.text(), u"Amste"_s);
  EXPECT_TRUE(city.hasFocus());
  DropChange();
}

TEST_F(RealFrameEditMenuTest, AltE_CopyOnANumberOfTheTelephoneList_CopiesWhatIsSelected) {
  RunOn(MakeFile(u"a.ddb"_s, test::ACardFile(), [](const test::CardFile& file) {
    file.AddCard(1, u"Card"_s);
    file.AddContact(1, u"Ann"_s, {{u"Activ"_s, -1}, {u"7"_s, u"0044 555-1"_s}});
  }));
  QGuiApplication::clipboard()->setText(u"before"_s);
  auto& telephone = Find<QComboBox>(u"TelephonList"_s);
  telephone.setFocus();
  telephone.lineEdit()->setSelection(5, 5);
  ChooseByKeys(u"hCopy"_s);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"555-1"_s);
  EXPECT_EQ(telephone.currentText(), u"0044 555-1"_s);
}

}  // namespace
}  // namespace velmora
