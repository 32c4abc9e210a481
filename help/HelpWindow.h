// SPDX-License-Identifier: MIT
#pragma once

#include "help/HelpRequest.h"

#include <QMainWindow>
#include <QUrl>

#include <memory>

class QAction;
class QMenu;
class QSplitter;
class QToolBar;

namespace velmora::ui {
class NoticeLabel;
}

namespace velmora {

class HelpCollection;
class HelpPage;
class HelpPanel;

/// The window of the help: the ways to a page on the left, the page on the right.
class HelpWindow final : public QMainWindow {
  Q_OBJECT

 public:
  HelpWindow();
  ~HelpWindow() override;

  /// Shows the topic of a request; the contents when the help has no such topic, which is told in front.
  /// False when the file cannot be opened: `why` then tells, and what was shown stays.
  [[nodiscard]] bool ShowTopic(const HelpRequest& request, QString& why);
  /// Brings the window up in front of others.
  void ComeToFront(const QString& activationToken);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetupMenus();
  void SetupGoMenu(QMenu& menu);
  void SetupViewMenu(QMenu& menu);
  void SetupToolBar();
  void RestorePlace();
  [[nodiscard]] bool OpenFile(const QString& file, QString& why);
  void ShowPage(const QUrl& page, const QStringList& words);
  void Print();
  void MoveAmongTopics(int step);
  void SwitchSide();

  std::unique_ptr<HelpCollection> m_collection;
  QSplitter* m_halves;
  HelpPage* m_page;
  // Reads the collection, so it goes before it.
  std::unique_ptr<HelpPanel> m_panel;
  ui::NoticeLabel* m_notice;
  /// What is to be told when the window is in front.
  QString m_untold;
  QAction* m_back = nullptr;
  QAction* m_forward = nullptr;
  QAction* m_contents = nullptr;
  QAction* m_print = nullptr;
  QAction* m_larger = nullptr;
  QAction* m_smaller = nullptr;
};

}  // namespace velmora
