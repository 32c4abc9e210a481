// SPDX-License-Identifier: MIT
#include "forms/Labels.h"
#include "tests/support/TestWindow.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class LabelsTest : public WindowTest {
 protected:
  static QString TipOf(QWidget& widget) {
    QToolTip::hideText();
    const QPoint centre = widget.rect().center();
    QHelpEvent ask(QEvent::ToolTip, centre, widget.mapToGlobal(centre));
    QCoreApplication::sendEvent(&widget, &ask);
    return QToolTip::text();
  }
};

TEST_F(LabelsTest, Label_MarkupInTheCaption_StaysPlain) {
  Label label(&m_window);
  label.SetCaption(u"<b>bold</b> & co"_s);
  EXPECT_EQ(label.Caption(), u"<b>bold</b> & co"_s);
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(LabelsTest, Label_CutCaption_IsToldWholeAndPlainAsItsTip) {
  Label label(&m_window);
  label.SetCaption(u"A <b>caption</b> that does not fit"_s);
  label.resize(60, 20);
  Show();
  EXPECT_EQ(TipOf(label), u"<span>A &lt;b&gt;caption&lt;/b&gt; that does not fit</span>"_s);
}

TEST_F(LabelsTest, Label_WithATipOfItsOwn_ShowsThat) {
  Label label(&m_window);
  label.SetCaption(u"A caption that does not fit"_s);
  label.setToolTip(u"its tip"_s);
  label.resize(60, 20);
  Show();
  EXPECT_EQ(TipOf(label), u"its tip"_s);
}

TEST_F(LabelsTest, Label_Mouse_ClickAndDoubleClickAreTold) {
  Label label(&m_window);
  label.resize(60, 20);
  Show();
  QSignalSpy click(&label, &Label::Click);
  QSignalSpy twice(&label, &Label::DblClick);
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(click.count(), 1);
  QTest::mouseDClick(&label, Qt::LeftButton);
  EXPECT_EQ(twice.count(), 1);
}

TEST_F(LabelsTest, SSPanel_ByKeys_TakesNoFocus) {
  SSPanel panel(&m_window);
  panel.SetCaption(u"1,234"_s);
  EXPECT_EQ(panel.Caption(), u"1,234"_s);
  EXPECT_EQ(panel.focusPolicy(), Qt::NoFocus);
  EXPECT_NE(panel.frameShape(), QFrame::NoFrame);
}

TEST_F(LabelsTest, GroupFrame_Caption_ReadsBackWithItsAmpersand) {
  GroupFrame frame(&m_window);
  frame.SetCaption(u"A & B"_s);
  EXPECT_EQ(frame.Caption(), u"A & B"_s);
  EXPECT_EQ(frame.title(), u"A && B"_s);
}

}  // namespace
}  // namespace velmora::ui
