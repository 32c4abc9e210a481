// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Flag.h"
#include "forms/Form.h"
#include "forms/Screen.h"
#include "frame/Frame.h"

#include <QMainWindow>

#include <memory>

class QMdiArea;

namespace velmora {

class CardFileSession;
class Commands;
class MainMenu;
class MainStrip;
class StripCommands;

/// The frame window: menu, strip and the area of the screens. Making it and calling Load starts the program.
/// What the menu and the toolbars command is run by Commands, what the strip's controls do by StripCommands;
/// everything about card files, the end of the run too, is CardFileSession's.
class Main final : public QMainWindow, public ui::Screen, public Frame {
  Q_OBJECT

 public:
  Main();
  ~Main() override;

  /// Reads the settings, shows the frame, and opens the last file with its card. Failures are skipped, and
  /// nothing but a notice tells of them. A file that is named takes the place of the last one, with its first
  /// card.
  void Load(const QString& file = {});
  /// The step of becoming active: when it is first shown, and when the program comes back from another
  /// program.
  void Activate();

  [[nodiscard]] QString ScreenName() const override { return objectName(); }
  /// Every way's Quit: closes the card screens as their own close boxes do, and when none refuses ends the
  /// run.
  bool Unload() override;

  void ShowCard() override;
  void NewCard() override;
  void SetWin(std::int32_t card, int active) override;
  [[nodiscard]] int GetActive() const override;
  bool UnloadOtherForms() override;
  [[nodiscard]] bool CloseCardScreens() override;
  void RepaintMain() override;
  int CardCountZero() override;
  void ClearpMainPic() override;
  void WhatWasCmdEditFieldsClick() override;
  void ShowQuickSearch() override;
  void SearchSimilarNames(const QString& word) override;
  void ShowValueList(CardScreen owner) override;
  void ShowHelpTopic(int number) override;
  [[nodiscard]] QString LastQuery() const override { return m_lastQuery; }
  void SetLastQuery(const QString& name) override { m_lastQuery = name; }
  void SetCaption(const QString& caption) override { setWindowTitle(caption); }
  void RememberFile() override;
  void EnableDelCard(bool enabled) override;
  void ShowInStrip(const QString& cardName, std::int32_t card) override;
  [[nodiscard]] QString NameInStrip() const override;
  void BlankCard() override;
  void ShowContactList(const QStringList& contacts, const QString& shown) override;
  void ShowTelephones(const QStringList& numbers, const QString& shown) override;
  void EmptySeekBox() override;
  [[nodiscard]] ui::Place SeekBoxPlace() const override;
  void ResLoaderMain() override;
  [[nodiscard]] QIcon ScreenIcon() const override;

  void CreateData();
  [[nodiscard]] static QString GetDirectoryProg();
  void exit_Click() { Unload(); }
  void file_new_Click();
  // Commands of features that this program does not have; they keep their place and do nothing.
  void EmailShow() {}
  void ListTelephoneShow() {}
  void OrderTelCalls() {}
  void Connections() {}
  void ProductsShow() {}
  void ContactsShow() {}
  void tqMakeReplica() {}

  /// Writes the clock or the stopwatch's time into the strip.
  void UpdateClock();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetupScreens();
  void SetupCommands();
  void SetupKeys();
  void LoadInitSettings();
  void RestoreSession(const QString& file);
  void OpenLastFile();
  void ShowFrame();
  /// Its own size, or what the screen has room for.
  void TakeSize();

  MainStrip* pMainPic = nullptr;
  QMdiArea* m_area = nullptr;
  MainMenu* m_menu = nullptr;
  StripCommands* m_stripCommands = nullptr;
  std::unique_ptr<CardFileSession> m_session;
  std::unique_ptr<Commands> m_commands;
  QString m_lastQuery;
  Flag TutorialShown = False;
  bool m_wasAway = false;
  bool m_painted = false;
  bool m_loaded = false;
};

}  // namespace velmora
