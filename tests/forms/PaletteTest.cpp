// SPDX-License-Identifier: MIT
#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/Labels.h"
#include "forms/ListBox.h"
#include "forms/MemoBox.h"
#include "forms/Palette.h"
#include "forms/ProgramLook.h"
#include "forms/ScrollSpin.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "tests/support/TestWindow.h"

#include <QApplication>
#include <QImage>
#include <QStyle>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

double Linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one);
  const double second = Luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

constexpr double ReadableText = 4.5;
constexpr double VisibleMark = 3.0;

class PaletteTest : public WindowTest, public ::testing::WithParamInterface<bool> {
 protected:
  PaletteTest() {
    ApplyProgramLook(*qApp);
    SetDarkLook(GetParam());
  }
  ~PaletteTest() override {
    SetDarkLook(std::nullopt);
    SetProgramScale(1.0);
  }
  static QImage Seen(QWidget& widget) { return widget.grab().toImage(); }
};

INSTANTIATE_TEST_SUITE_P(Looks, PaletteTest, ::testing::Values(false, true),
                         [](const auto& look) { return look.param ? "Dark" : "Light"; });

TEST_P(PaletteTest, TextRoles_OnButtonFaceAndWhite_CanBeRead) {
  for (const Role ground : {Role::ButtonFace, Role::White}) {
    for (const Role text : {Role::Ink, Role::Red, Role::Blue, Role::DarkRed})
      EXPECT_GE(Contrast(RoleColor(text), RoleColor(ground)), ReadableText);
  }
  const QPalette palette = QApplication::palette();
  EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
            ReadableText);
  EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)),
            ReadableText);
  EXPECT_GE(Contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Window)), VisibleMark);
}

TEST_P(PaletteTest, SetBackColor_StrongGround_TurnsTheTextReadable) {
  SSRibbon ribbon(&m_window);
  ribbon.SetBackColor(Role::Red);
  EXPECT_GE(Contrast(ribbon.palette().color(QPalette::ButtonText), ribbon.palette().color(QPalette::Button)),
            ReadableText);
}

TEST_P(PaletteTest, SetColors_OnATextBox_ReachItsPalette) {
  TextBox box(&m_window);
  Show();
  box.SetBackColor(Role::ButtonFace);
  box.SetForeColor(Role::DarkRed);
  EXPECT_EQ(box.BackColor(), Role::ButtonFace);
  EXPECT_EQ(box.ForeColor(), Role::DarkRed);
  EXPECT_EQ(box.palette().color(QPalette::Base), RoleColor(Role::ButtonFace));
  EXPECT_EQ(box.palette().color(QPalette::Text), RoleColor(Role::DarkRed));
  box.SetBackColor(Role::Default);
  box.SetForeColor(Role::Default);
  EXPECT_EQ(box.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST_P(PaletteTest, SetDarkLook_WithColouredControls_RecoloursThem) {
  SSCommand button(&m_window);
  button.SetForeColor(Role::Red);
  SetDarkLook(!GetParam());
  EXPECT_EQ(button.palette().color(QPalette::ButtonText), RoleColor(Role::Red));
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), RoleColor(Role::ButtonFace));
}

TEST_P(PaletteTest, SetBackColor_OnALabel_FillsIt) {
  Label label(&m_window);
  label.resize(20, 20);
  label.SetBackColor(Role::Blue);
  EXPECT_EQ(Seen(label).pixelColor(10, 10), RoleColor(Role::Blue));
}

TEST_P(PaletteTest, SSRibbon_Pressed_BearsAMarkInTheHighlightColour) {
  SSRibbon ribbon(&m_window);
  ribbon.resize(80, 24);
  Show();
  const QPoint bar(40, 21);
  const QColor mark = QApplication::palette().color(QPalette::Highlight);
  EXPECT_NE(Seen(ribbon).pixelColor(bar), mark);
  ribbon.SetValue(true);
  EXPECT_EQ(Seen(ribbon).pixelColor(bar), mark);
}

template <typename T>
T& Made(QWidget& window) {
  auto* control = new T(&window);
  control->setGeometry(10, 50, 60, 40);
  return *control;
}

TEST_P(PaletteTest, Focus_WithoutTheTabKey_ShowsOnEveryKindOfControl) {
  TextBox elsewhere(&m_window);
  elsewhere.setGeometry(300, 10, 50, 20);
  auto& list = Made<ComboBox>(m_window);
  list.SetMode(ComboMode::DropDownList);
  auto& emptyCheck = Made<CheckBox>(m_window);
  auto& check = Made<CheckBox>(m_window);
  check.SetCaption(u"tick"_s);
  auto& option = Made<OptionButton>(m_window);
  option.SetCaption(u"one"_s);
  const QList<Control*> controls{&Made<TextBox>(m_window),
                                 &Made<MemoBox>(m_window),
                                 &Made<ListBox>(m_window),
                                 &Made<SSCommand>(m_window),
                                 &Made<SSRibbon>(m_window),
                                 &emptyCheck,
                                 &check,
                                 &Made<ScrollSpin>(m_window),
                                 &list,
                                 &option,
                                 &Made<ComboBox>(m_window)};
  Show();
  for (Control* control : controls) {
    QWidget& widget = *control->Widget();
    widget.raise();
    elsewhere.SetFocus();
    const QImage before = Seen(widget);
    control->SetFocus();
    if (auto* cursorOwner = qobject_cast<QLineEdit*>(&widget)) cursorOwner->setCursorPosition(0);
    ASSERT_TRUE(widget.hasFocus()) << widget.metaObject()->className();
    const QImage after = Seen(widget);
    int marked = 0;
    for (int x = 0; x < after.width(); ++x) {
      for (int y = 0; y < after.height(); ++y) {
        if (after.pixel(x, y) != before.pixel(x, y)) ++marked;
      }
    }
    // More than a blinking cursor: a frame.
    EXPECT_GT(marked, 40) << widget.metaObject()->className();
  }
}

TEST(LookTest, Environment_Variable_ChoosesTheLook) {
  qputenv("VELMORA_LOOK", "dark");
  EXPECT_TRUE(IsDarkLook());
  qputenv("VELMORA_LOOK", "light");
  EXPECT_FALSE(IsDarkLook());
  SetDarkLook(true);
  EXPECT_TRUE(IsDarkLook());
  SetDarkLook(std::nullopt);
  qunsetenv("VELMORA_LOOK");
}

TEST(LookTest, ApplyProgramLook_Scale_FollowsTheFont) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(24);
  QApplication::setFont(large);
  ApplyProgramLook(*qApp);
  EXPECT_GE(Pixels(285), QFontMetrics(large).height());
  QApplication::setFont(usual);
  SetProgramScale(1.0);
}

}  // namespace
}  // namespace velmora::ui
