// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Control.h"

#include <QTabWidget>

namespace velmora::ui {

/// Pages of controls of which one is in view, each under a tab with its caption. Pages count from 0; the
/// first one that is added is in view until another is brought up. Ctrl+PageDown and Ctrl+PageUp turn the
/// pages from anywhere on the parent, the arrow keys do on the tabs themselves.
class SSTab : public QTabWidget, public Control {
  Q_OBJECT

 public:
  explicit SSTab(QWidget* parent);

  /// Adds an empty page, which is named after this control, so name that first.
  [[nodiscard]] QWidget* AddPage(const QString& caption, Ampersand ampersand = Ampersand::Plain);
  [[nodiscard]] int Tabs() const { return count(); }
  /// The caption of a page as it was given.
  [[nodiscard]] QString TabCaption(int tab) const;

  /// The page in view, -1 while there is none.
  [[nodiscard]] int Tab() const { return currentIndex(); }
  /// Brings a page up; a page that is not there changes nothing.
  void SetTab(int tab) { setCurrentIndex(tab); }

 Q_SIGNALS:
  /// Another page is in view, whoever brought it up. The first page, when it is added, is not told.
  void Click(int previousTab);

 private:
  void OnCurrentChanged(int tab);

  QStringList m_captions;
  int m_tab = -1;
};

}  // namespace velmora::ui
