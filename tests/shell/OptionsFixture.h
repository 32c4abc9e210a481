// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ComboBox.h"
#include "forms/ListBox.h"
#include "forms/SSTab.h"
#include "frame/Session.h"
#include "shell/PicturePreview.h"
#include "tests/shell/RealFrame.h"

#include <QDir>
#include <QPixmap>
#include <QtTest>

#include <functional>
#include <utility>
#include <vector>

namespace velmora {

/// The options over the real frame, worked by keys and clicks on whatever tab a control stands.
class OptionsFixture : public RealFrame {
 protected:
  /// Longer than the options of a card file can hold.
  static inline const QString longName = QString(41, QLatin1Char('n'));

  /// A closed card file with fields of every kind and those options.
  QString MakeWide(const std::vector<std::pair<QString, QString>>& options) {
    return MakeFile(QStringLiteral("wide.ddb"),
                    test::ACardFile()
                        .With(test::TextField(QStringLiteral("Tel")))
                        .With(test::YesNoField(QStringLiteral("Active")))
                        .With(test::NumberField(QStringLiteral("Fax")))
                        .With(test::DateField(QStringLiteral("Due")))
                        .With(test::TextField(QStringLiteral("Owner's")))
                        .With(test::TextField(longName), 2),
                    [&options](const test::CardFile& file) {
                      file.AddCard(1, QStringLiteral("Card 1"));
                      for (const auto& [key, value] : options)
                        file.AddRow(QStringLiteral("tOptions"),
                                    {{QStringLiteral("txtKey"), key}, {QStringLiteral("tVal"), value}});
                    });
  }
  /// A picture file of one colour.
  [[nodiscard]] QString MakePicture(const QString& name, const QColor& colour) const {
    QPixmap picture(64, 32);
    picture.fill(colour);
    EXPECT_TRUE(picture.save(PathOf(name)));
    return PathOf(name);
  }
  /// Opens the options from the menu; `work` must leave them.
  void InOptions(const std::function<void()>& work) const {
    InDialog(
        Name, [this] { Trigger(QStringLiteral("mnuOptions")); }, work);
  }

  /// Brings the tab of a control up.
  static void TurnTo(const QWidget& control) {
    auto& tabs = In<ui::SSTab>(Name, QStringLiteral("tabOptions"));
    for (int tab = 0; tab < tabs.Tabs(); ++tab) {
      if (tabs.widget(tab)->isAncestorOf(&control)) tabs.SetTab(tab);
    }
    QApplication::setActiveWindow(tabs.window());
  }
  static void PressOption(const QString& control) {
    auto& button = In<QWidget>(Name, control);
    TurnTo(button);
    Click(button);
  }
  /// Presses the space bar on a tick box or a choice.
  static void ClickOption(const QString& control) {
    auto& button = In<QWidget>(Name, control);
    TurnTo(button);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
  }
  void TypeOption(const QString& box, const QString& text) const {
    TurnTo(In<QWidget>(Name, box));
    Type(Name, box, text);
  }
  /// Picks an entry of a list by keys.
  static void Pick(const QString& list, const QString& entry) {
    TurnTo(List(list));
    List(list).setFocus();
    QTest::keyClicks(&List(list), entry);
    ASSERT_EQ(Text(list), entry);
  }
  [[nodiscard]] static ui::ComboBox& List(const QString& name) { return In<ui::ComboBox>(Name, name); }
  [[nodiscard]] static QString Text(const QString& control) { return TextOf(Name, control); }
  /// The four ports, an x for the one that is set.
  [[nodiscard]] static QString Ports() {
    QString ports;
    for (int i = 1; i <= 4; ++i)
      ports += In<ui::OptionButton>(Name, QStringLiteral("opt%1").arg(i)).Value() ? QLatin1Char('x')
                                                                                  : QLatin1Char('-');
    return ports;
  }
  [[nodiscard]] static const PicturePreview& Preview() {
    return In<PicturePreview>(Name, QStringLiteral("picBackGround"));
  }
  [[nodiscard]] static bool HasPreview() { return Preview().HasPicture(); }
  /// The colour in the middle of the preview.
  [[nodiscard]] static QColor PreviewColour() {
    const QImage picture = Preview().Picture().toImage();
    return picture.pixelColor(picture.rect().center());
  }
  [[nodiscard]] static QString Init(const QString& key) { return Stored(QStringLiteral("Init"), key); }

 private:
  static inline const QString Name = QStringLiteral("frmOptions");
};

}  // namespace velmora
