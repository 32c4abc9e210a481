// SPDX-License-Identifier: MIT
#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/Labels.h"
#include "forms/ListBox.h"
#include "forms/MaskEdBox.h"
#include "forms/MemoBox.h"
#include "forms/ScrollSpin.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QPointer>
#include <QtTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

void FreeDeleted() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

class ControlArrayTest : public WindowTest {
 protected:
  ControlArray<TextBox> m_boxes{&m_window, u"NameText"_s};
};

TEST_F(ControlArrayTest, Element0_FromTheStart_ExistsUnderItsName) {
  EXPECT_TRUE(m_boxes.Has(0));
  EXPECT_EQ(m_boxes.Count(), 1);
  EXPECT_EQ(m_boxes[0].objectName(), u"NameText(0)"_s);
}

TEST_F(ControlArrayTest, Load_WithHoles_HasOnlyWhatWasLoaded) {
  m_boxes.Load(3);
  m_boxes.Load(17);
  EXPECT_EQ(m_boxes.Count(), 3);
  EXPECT_FALSE(m_boxes.Has(1));
  EXPECT_THROW(static_cast<void>(m_boxes[1]), std::out_of_range);
  QList<int> walked;
  m_boxes.ForEach([&](TextBox& box) { walked.append(box.Index()); });
  EXPECT_EQ(walked, (QList<int>{0, 3, 17}));
}

TEST_F(ControlArrayTest, Load_NewElement_IsHiddenAtThePlaceOfElement0) {
  m_boxes[0].SetPlace({1, 2, 1815, 285});
  const TextBox& box = m_boxes.Load(5);
  EXPECT_EQ(box.Placed(), (Place{1, 2, 1815, 285}));
  EXPECT_FALSE(box.Visible());
  EXPECT_EQ(box.objectName(), u"NameText(5)"_s);
}

TEST_F(ControlArrayTest, LoadOnce_Twice_IsTheSameElement) {
  TextBox& box = m_boxes.LoadOnce(4);
  EXPECT_EQ(&m_boxes.LoadOnce(4), &box);
  EXPECT_EQ(&m_boxes.LoadOnce(0), &m_boxes[0]);
  EXPECT_EQ(m_boxes.Widgets(), (QList<QWidget*>{&m_boxes[0], &box}));
}

TEST_F(ControlArrayTest, Load_ElementThatExists_Fails) {
  m_boxes.Load(2);
  EXPECT_THROW(m_boxes.Load(2), std::logic_error);
  EXPECT_THROW(m_boxes.Load(0), std::logic_error);
}

TEST_F(ControlArrayTest, Load_AfterUnload_MakesANewElement) {
  m_boxes.Load(2).SetText(u"old"_s);
  m_boxes[2].Unload();
  EXPECT_FALSE(m_boxes.Has(2));
  EXPECT_EQ(m_boxes.Load(2).Text(), QString());
}

TEST_F(ControlArrayTest, Unload_OfElement0_ChangesNothing) {
  m_boxes[0].SetVisible(true);
  m_boxes[0].Unload();
  m_boxes.Unload(0);
  FreeDeleted();
  EXPECT_TRUE(m_boxes.Has(0));
  EXPECT_TRUE(m_boxes[0].Visible());
}

TEST_F(ControlArrayTest, Unload_OfNoElement_Fails) { EXPECT_THROW(m_boxes.Unload(9), std::out_of_range); }

TEST_F(ControlArrayTest, Unload_InItsOwnHandler_LivesUntilTheHandlerIsDone) {
  QPointer<TextBox> box(&m_boxes.Load(4));
  box->SetVisible(true);
  Show();
  bool lived = false;
  QObject::connect(box, &TextBox::EnterPressed, &m_window, [&] {
    box->Unload();
    lived = !box.isNull();
  });
  box->SetFocus();
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_TRUE(lived);
  EXPECT_FALSE(m_boxes.Has(4));
  FreeDeleted();
  EXPECT_TRUE(box.isNull());
}

TEST_F(ControlArrayTest, Setup_ForEachElement_RunsAfterItHasItsName) {
  QStringList names;
  ControlArray<Label> labels(&m_window, u"NameLab"_s, [&](Label& label) { names << label.objectName(); });
  labels.Load(2);
  EXPECT_EQ(names, (QStringList{u"NameLab(0)"_s, u"NameLab(2)"_s}));
}

template <typename T>
class EveryKindTest : public WindowTest {};
using Kinds = ::testing::Types<Label, SSPanel, TextBox, MaskEdBox, MemoBox, CheckBox, SSCommand, SSRibbon,
                               OptionButton, ListBox, ComboBox, ScrollSpin, GroupFrame, Line>;
TYPED_TEST_SUITE(EveryKindTest, Kinds);

TYPED_TEST(EveryKindTest, ControlArray_OfThisKind_LoadsAndUnloads) {
  ControlArray<TypeParam> elements(&this->m_window, u"Some"_s);
  elements[0].SetPlace({15, 30, 1500, 300});
  const QPointer<TypeParam> element(&elements.Load(7));
  EXPECT_EQ(element->Placed(), (Place{15, 30, 1500, 300}));
  elements.Unload(7);
  FreeDeleted();
  EXPECT_TRUE(element.isNull());
  EXPECT_EQ(elements.Count(), 1);
}

}  // namespace
}  // namespace velmora::ui
