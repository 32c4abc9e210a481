// SPDX-License-Identifier: MIT
// What the options show: their tabs, and each control's caption and tip to the letter.
#include "forms/Labels.h"
#include "shell/ShortcutPictures.h"
#include "tests/shell/OptionsFixture.h"

#include <QAccessible>
#include <QSignalSpy>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class OptionsControlsTest : public OptionsFixture {};

/// A control, what it says of itself or what the label beside it says, and its tip.
struct Told {
  const char* Tab;
  const char* Name;
  const char* Caption;
  const char* Tip;
};

constexpr Told controls[]{
    {"General", "cmdListFields", "Tel. No. Field",
     "Choose a Card Field for Telephone No. -- This Will Enable Quick Search Identification"},
    {"General", "cmbListFax", "Fax No. Field", "Choose Card Field for Fax "},
    {"General", "txtMaam", "Enter Tax Percentage",
     "Enter Tax Percentage. Will Appear in Prices and Price Lists"},
    {"General", "Frame1", "Modem settings", ""},
    {"General", "opt1", "COM 1", ""},
    {"General", "opt2", "COM 2", ""},
    {"General", "opt3", "COM 3", ""},
    {"General", "opt4", "COM 4", ""},
    {"General", "chUSA", "Inside USA", ""},
    {"Buttons", "rButton(0)", "", ""},
    {"Buttons", "rButton(1)", "", ""},
    {"Buttons", "rButton(2)", "", ""},
    {"Buttons", "txtNameFile", "", "File Intended for Shortcut Button"},
    {"Buttons", "cmdSearchFile", "File", "Click to Choose File for Shortcut Button"},
    {"Buttons", "lstIcon", "", "Select Icon and Click Save"},
    {"Buttons", "cmdSavePath", "Save", "First Select Button, File and Icon and then Click Save"},
    {"Dialing", "txtPrefix", "External", ""},
    {"Dialing", "txtArea", "Area Code", ""},
    {"Internet", "txtEmail", "Email address",
     "Enter your settings in order to enable you to send e-mail messages"},
    {"Internet", "txtMailServer", "Mail Server",
     "Enter your settings in order to enable you to send e-mail messages"},
    {"Internet", "txtBrowser", "Internet browser", ""},
    {"Internet", "cmdAddFile", "Browse...", ""},
    {"Background", "chkUseBackground", "Use background", ""},
    {"Background", "txtBackGround", "", "Enter your settings for changing background"},
    {"Background", "cmdBackGround", "Browse...", ""},
    {"Background", "picBackGround", "", ""},
    {"Word Processor", "cmbTextEditor", "", ""},
    {nullptr, "EditData", "OK", "Click OK to Confirm Settings and Exit"},
    {nullptr, "CancelData", "Cancel", "Click to Exit"},
    {nullptr, "cmdApply", "Apply", "Click to Confirm "}};

/// The caption of a button or frame; of another control that of its label.
QString CaptionOf(const QWidget& screen, QWidget& control) {
  if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) return frame->title();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  for (const ui::Label* label : screen.findChildren<ui::Label*>()) {
    if (label->buddy() == &control) return label->Caption();
  }
  return {};
}

TEST_F(OptionsControlsTest, Controls_OnTheirTabs_BearTheirCaptionsAndTips) {
  Start();
  InOptions([this] {
    const QWidget& screen = Screen(u"frmOptions"_s);
    EXPECT_EQ(screen.windowTitle(), u"Options"_s);
    auto& tabs = In<ui::SSTab>(u"frmOptions"_s, u"tabOptions"_s);
    QStringList captions;
    for (int tab = 0; tab < tabs.Tabs(); ++tab) captions += tabs.TabCaption(tab);
    EXPECT_EQ(captions, QStringList({u"General"_s, u"Buttons"_s, u"Dialing"_s, u"Internet"_s, u"Background"_s,
                                     u"Word Processor"_s}));
    for (const Told& told : controls) {
      auto& control = In<QWidget>(u"frmOptions"_s, QString::fromLatin1(told.Name));
      EXPECT_EQ(CaptionOf(screen, control), QString::fromLatin1(told.Caption)) << told.Name;
      EXPECT_EQ(control.toolTip(), QString::fromLatin1(told.Tip)) << told.Name;
      const qsizetype tab = captions.indexOf(QString::fromLatin1(told.Tab));
      for (int i = 0; i < tabs.Tabs(); ++i)
        EXPECT_EQ(tabs.widget(i)->isAncestorOf(&control), i == tab) << told.Name << " on " << i;
    }
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsControlsTest, WordProcessors_List_HasItsTwoEntries) {
  Start();
  InOptions([this] {
    ui::ComboBox& list = List(u"cmbTextEditor"_s);
    ASSERT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(0), u"Word 7 / Office 95"_s);
    EXPECT_EQ(list.List(1), u"Word 8 / Office 97"_s);
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsControlsTest, LstIcon_Pictures_AreTwelveThatDifferAndHaveNames) {
  const ui::ImageList pictures = ShortcutPictures();
  const QStringList names = ShortcutPictureNames();
  ASSERT_EQ(pictures.ListCount(), 12);
  EXPECT_EQ(names.size(), 12);
  QList<QImage> seen;
  for (int i = 1; i <= 12; ++i) {
    const QImage drawn = pictures.ListImage(i).pixmap(QSize(32, 32), 1.0).toImage();
    EXPECT_FALSE(seen.contains(drawn)) << names.at(i - 1).toStdString();
    seen += drawn;
  }
  Start();
  InOptions([&] {
    auto& list = In<ui::ListBox>(u"frmOptions"_s, u"lstIcon"_s);
    EXPECT_EQ(list.Lines(), names);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list);
    ASSERT_EQ(spoken->childCount(), 12);
    EXPECT_EQ(spoken->child(3)->text(QAccessible::Name), names.at(3));
    PressOption(u"CancelData"_s);
  });
}

TEST_F(OptionsControlsTest, TabOptions_OtherTab_RepaintsTheDialog) {
  class Paints final : public QObject {
   public:
    int Count = 0;
    bool eventFilter(QObject* /*target*/, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++Count;
      return false;
    }
  };
  Start();
  InOptions([this] {
    QApplication::processEvents();
    Paints paints;
    Screen(u"frmOptions"_s).installEventFilter(&paints);
    In<ui::SSTab>(u"frmOptions"_s, u"tabOptions"_s).SetTab(3);
    EXPECT_GE(paints.Count, 1);
    PressOption(u"CancelData"_s);
  });
}

}  // namespace
}  // namespace velmora
