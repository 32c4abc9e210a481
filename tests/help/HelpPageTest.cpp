// SPDX-License-Identifier: MIT
#include "forms/Palette.h"
#include "help/HelpPage.h"
#include "help/HelpWindow.h"
#include "tests/help/HelpFixture.h"

#include <QPrinter>
#include <QSettings>
#include <QSplitter>
#include <QTextBlock>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class HelpPageTest : public HelpFixture {
 protected:
  [[nodiscard]] QImage Picture(const QString& name) const {
    const QUrl picture(u"pictures/"_s + name);
    return Page().document()->resource(QTextDocument::ImageResource, picture).value<QImage>();
  }
  /// Moves the mouse wheel over the page by one step, with Ctrl.
  void TurnWheel(int step) const {
    const QPointF place(20, 20);
    QWheelEvent event(place, Page().viewport()->mapToGlobal(place), {}, QPoint(0, step * 120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Page().viewport(), &event);
  }
};

TEST_F(HelpPageTest, Pictures_NarrowWindow_FitThePage) {
  HelpWindow& window = Show(u"118"_s);
  window.resize(1200, 700);
  const int wide = Picture(u"viewer-page-2-light.png"_s).width();
  EXPECT_GT(wide, 0);
  window.resize(600, 700);
  const int narrow = Picture(u"viewer-page-2-light.png"_s).width();
  EXPECT_LT(narrow, wide);
  EXPECT_LE(narrow, Page().viewport()->width());
  EXPECT_FALSE(Page().horizontalScrollBar()->isVisible());
  window.resize(1200, 700);
  EXPECT_EQ(Picture(u"viewer-page-2-light.png"_s).width(), wide);
}

TEST_F(HelpPageTest, Pictures_DarkLook_AreTheDarkOnes) {
  ui::SetDarkLook(false);
  Show(u"118"_s);
  const QColor light = Picture(u"editor-light.png"_s).pixelColor(300, 300);
  ui::SetDarkLook(true);
  const QColor dark = Picture(u"editor-light.png"_s).pixelColor(300, 300);
  EXPECT_GT(light.lightness(), 200);
  EXPECT_LT(dark.lightness(), 100);
  EXPECT_EQ(PageName(), u"cards.html"_s);
}

TEST_F(HelpPageTest, StyleSheet_IsApplied) {
  Show(u"limits"_s);
  const QTextBlockFormat paragraph = Page().document()->lastBlock().blockFormat();
  EXPECT_EQ(paragraph.lineHeightType(), static_cast<int>(QTextBlockFormat::ProportionalHeight));
}

TEST_F(HelpPageTest, Mark_WordsOfASearch_AreMarkedAndInView) {
  Show(u"limits"_s);
  Page().Mark({u"apostroph"_s, u"comma"_s});
  ASSERT_FALSE(Page().extraSelections().isEmpty());
  for (const auto& mark : Page().extraSelections())
    EXPECT_TRUE(mark.cursor.selectedText().startsWith(u"apostroph"_s, Qt::CaseInsensitive));
  EXPECT_EQ(Page().textCursor().position(), Page().extraSelections().first().cursor.selectionStart());
  EXPECT_TRUE(Page().viewport()->rect().contains(Page().cursorRect().center()));
}

TEST_F(HelpPageTest, Mark_NextPage_HasNoMarks) {
  Show(u"limits"_s);
  Page().Mark({u"apostrophe"_s});
  Show(u"113"_s);
  EXPECT_TRUE(Page().extraSelections().isEmpty());
}

TEST_F(HelpPageTest, TextSize_KeysAndWheel_ChangeItTogether) {
  Show();
  const double normal = Page().font().pointSizeF();
  Trigger(u"Larger"_s);
  TurnWheel(1);
  EXPECT_DOUBLE_EQ(Page().font().pointSizeF(), normal + 2);
  TurnWheel(-1);
  Trigger(u"Smaller"_s);
  Trigger(u"Smaller"_s);
  EXPECT_DOUBLE_EQ(Page().font().pointSizeF(), normal - 1);
  Trigger(u"NormalSize"_s);
  EXPECT_DOUBLE_EQ(Page().font().pointSizeF(), normal);
}

TEST_F(HelpPageTest, TextSize_AtItsEnds_StopsThere) {
  Show();
  Page().SetTextSteps(1000);
  EXPECT_EQ(Page().TextSteps(), HelpPage::LargestStep);
  EXPECT_FALSE(m_window->findChild<QAction*>(u"Larger"_s)->isEnabled());
  Page().SetTextSteps(-1000);
  EXPECT_EQ(Page().TextSteps(), HelpPage::SmallestStep);
  EXPECT_FALSE(m_window->findChild<QAction*>(u"Smaller"_s)->isEnabled());
}

TEST_F(HelpPageTest, TextSize_NextRun_IsTheSame) {
  Show();
  Page().SetTextSteps(3);
  CloseWindow();
  Show();
  EXPECT_EQ(Page().TextSteps(), 3);
}

TEST_F(HelpPageTest, OnPaper_DarkLook_IsLightAndAsWideAsThePaper) {
  ui::SetDarkLook(true);
  Show(u"118"_s);
  constexpr int paper = 400;
  const auto page = Page().OnPaper(paper);
  const QUrl name(u"pictures/editor-light.png"_s);
  const auto picture = page->resource(QTextDocument::ImageResource, name).value<QImage>();
  EXPECT_EQ(picture.width(), paper);
  EXPECT_GT(picture.pixelColor(paper / 2, paper / 2).lightness(), 200);
  const QTextCursor link = page->find(u"quick search"_s);
  EXPECT_TRUE(link.charFormat().isAnchor());
  EXPECT_EQ(link.charFormat().foreground().color(), QColor(Qt::black));
}

TEST_F(HelpPageTest, PrintTo_DarkLook_PrintsAllTheSame) {
  ui::SetDarkLook(true);
  Show(u"118"_s);
  QPrinter printer;
  printer.setOutputFileName(PathOf(u"page.pdf"_s));
  Page().PrintTo(printer);
  QFile paper(PathOf(u"page.pdf"_s));
  ASSERT_TRUE(paper.open(QIODevice::ReadOnly));
  EXPECT_TRUE(paper.read(5) == "%PDF-");
  // The words, and the pictures with them.
  EXPECT_GT(paper.size(), 50000);
  EXPECT_EQ(PageName(), u"cards.html"_s);
}

TEST_F(HelpPageTest, Link_Pressed_ShowsItsPageAndPlace) {
  Show(u"152"_s);
  Q_EMIT Page().anchorClicked(QUrl(u"design.html#later"_s));
  EXPECT_EQ(PageName(), u"design.html#later"_s);
  Q_EMIT Page().anchorClicked(QUrl(u"limits.html"_s));
  EXPECT_EQ(PageName(), u"limits.html"_s);
}

TEST_F(HelpPageTest, Link_ByKeys_ShowsItsPage) {
  Show();
  QTest::keyClick(&Page(), Qt::Key_Tab);
  QTest::keyClick(&Page(), Qt::Key_Return);
  EXPECT_EQ(PageName(), u"first-file.html"_s);
}

TEST_F(HelpPageTest, Page_ThatTheFileDoesNotHold_SaysSo) {
  Show();
  Q_EMIT Page().anchorClicked(QUrl(u"nowhere.html"_s));
  EXPECT_TRUE(Page().toPlainText().contains(u"does not hold this page"_s))
      << Page().toPlainText().toStdString();
}

}  // namespace
}  // namespace velmora
