// SPDX-License-Identifier: MIT
#pragma once

#include "tests/shell/MainFixture.h"
#include "tests/support/CardFiles.h"

#include <QWidget>

#include <functional>
#include <stdexcept>

namespace velmora {

/// The program as its user meets it: the real frame over real files, its screens and their controls found by
/// name and worked by keys and clicks. Only files are looked into behind its back.
class RealFrame : public MainFixture {
 protected:
  using MainFixture::MakeFile;

  /// A closed card file of that design, with what `fill` puts in.
  QString MakeFile(const QString& name, const test::ACardFile& design,
                   const std::function<void(const test::CardFile&)>& fill);
  /// Starts on a file as StartOn does, with the frame as the desktop's active window.
  Main& RunOn(const QString& path, int card = 1);
  /// Ends this run and starts another one, which knows only what was stored.
  Main& RunAgain();

  /// The open screen of that name.
  [[nodiscard]] static QWidget& Screen(const QString& name);
  template <typename T>
  [[nodiscard]] static T& In(const QString& screen, const QString& control) {
    T* found = Screen(screen).findChild<T*>(control);
    if (found == nullptr) throw std::logic_error("no control " + control.toStdString());
    return *found;
  }
  /// What a label, a button, a box or a list shows of itself.
  [[nodiscard]] static QString TextOf(const QWidget& control);
  [[nodiscard]] static QString TextOf(const QString& screen, const QString& control) {
    return TextOf(In<QWidget>(screen, control));
  }
  /// The same of a control of the strip.
  [[nodiscard]] QString Strip(const QString& control) const { return TextOf(Find<QWidget>(control)); }

  static void Click(QWidget& widget);
  static void Press(const QString& screen, const QString& button) { Click(In<QWidget>(screen, button)); }
  void PressInStrip(const QString& button) const { Click(Find<QWidget>(button)); }
  /// Clicks a button of one of the two toolbars.
  void ClickTool(const QString& bar, int index) const;
  /// Types over whatever a box of that screen holds.
  void Type(const QString& screen, const QString& box, const QString& text) const;
  /// Makes the open viewer or editor hold a change that is not saved: another city.
  void ChangeCity(const QString& screen, const QString& city) const {
    Type(screen, QStringLiteral("NameText(0)"), city);
  }
  /// Shows the screen of a new card, as its toolbar button does.
  void OpenEditor() const { ClickTool(QStringLiteral("ltTool"), 1); }
  /// Waits for a dialog, works on it and sees it gone.
  void InDialog(const QString& dialog, const std::function<void()>& open,
                const std::function<void()>& work) const;

  /// The rows of a card file, each as its columns joined by '|'; one of "fails" when they can't be read.
  [[nodiscard]] static QStringList RowsOf(const QString& path, const QString& source);
};

}  // namespace velmora
