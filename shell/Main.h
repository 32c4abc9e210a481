// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "forms/Screen.h"
#include "frame/Frame.h"
#include "shell/CardFileSession.h"

#include <QDateTime>
#include <QMainWindow>

#include <memory>

namespace velmora {

class MainMenu;
class MainStrip;

/// The frame window: menu, strip and the area of the screens. Making it and calling Load starts the program;
/// QuitAndCompact ends it. Everything about card files is CardFileSession's.
class Main final : public QMainWindow, public ui::Screen, public Frame {
  Q_OBJECT

 public:
  Main();
  ~Main() override;

  /// Reads the settings, shows the frame, and opens the last file with its card. Failures are skipped in
  /// silence.
  void Load();
  /// The step of becoming active: when it is first shown, and when the program comes back from another
  /// program.
  void Activate();
  /// Sets the background of the strip from the settings.
  void ResLoaderMain();

  [[nodiscard]] QString ScreenName() const override { return objectName(); }
  /// Quit: closes the card screens as their own close boxes do, and when none refuses ends the run.
  bool Unload() override;

  void ShowCard() override;
  void NewCard() override;
  void SetWin(std::int32_t card, int active) override;
  [[nodiscard]] int GetActive() const override;
  void UnloadOtherForms() override;
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
  void SetCaption(const QString& caption) override;
  void EnableDelCard(bool enabled) override;
  [[nodiscard]] ui::Label& ClientLab() override;
  [[nodiscard]] ui::Label& NumberLab() override;
  [[nodiscard]] ui::ComboBox& AgentLab() override;
  [[nodiscard]] ui::ComboBox& TelephonList() override;
  [[nodiscard]] ui::TextBox& txtSeek() override;
  [[nodiscard]] QIcon ScreenIcon() const override { return windowIcon(); }

  void CreateData() { m_session->CreateData(); }
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
  void SetupMenu();
  void SetupStrip();
  void SetupKeys();
  void LoadInitSettings();
  void RestoreSession();
  void ShowFrame();
  void ShowWelcome();
  void ShowCreateHelpScreen();
  void StepCard(std::int32_t step);
  void SeekCard();
  void DelCard();
  void ToggleStopwatch();
  void ClientLabDoubleClicked();
  void SetupToolbars();
  void OnShortTool(int index);
  void OnLongTool(int index);
  void MoveAround(int step);

  // The commands of toolbars and menus, each opening a screen or starting a program.
  void OpenQueryBuilder();
  void OpenQueryList();
  void OpenSearch();
  void OpenFieldEditor();
  void ShowQuickSearchOnCards();
  void ShowFieldEditor();
  void ShowQueryBuilder();
  void ShowQueryList();
  void ShowSearch();
  void ReturnToPreviousQuery();
  void ShowBrowser();
  void ShowOptions();
  void ShowAbout();
  void ShowSamples();
  void ShowHelpContents();
  void ShowVideoHelp();
  void OpenWebPage();
  void RunCalculator();
  void RunProgram(int number);
  template <int Number>
  void RunProgramNumber() {
    RunProgram(Number);
  }
  void QuitByToolbar();
  struct ToolCommand;
  void RunTool(const ToolCommand& command);

  [[nodiscard]] bool OpenWithCards();

  MainStrip* pMainPic = nullptr;
  QMdiArea* m_area = nullptr;
  MainMenu* m_menu = nullptr;
  std::unique_ptr<CardFileSession> m_session;
  QString m_lastQuery;
  QTime StopwatchStart;
  Flag StopwatchOn = False;
  Flag TutorialShown = False;
  bool m_wasAway = false;
  bool m_painted = false;
  bool m_loaded = false;
};

}  // namespace velmora
