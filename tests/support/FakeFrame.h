// SPDX-License-Identifier: MIT
#pragma once

#include "base/text/Numbers.h"
#include "forms/ActivationPause.h"
#include "forms/ComboBox.h"
#include "forms/Form.h"
#include "forms/FormManager.h"
#include "forms/Labels.h"
#include "forms/Notice.h"
#include "forms/Screen.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "shell/CardCount.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QStringList>
#include <QVBoxLayout>

#include <functional>
#include <optional>

namespace velmora::test {

/// A frame for tests of screens: a real window of the program's size with a strip and an area for the
/// screens. What screens ask of it is noted in Calls ("NewCard", "ShowHelpTopic 113") and otherwise does only
/// what a screen can see at once.
class FakeFrame final : public QMainWindow, public ui::Screen, public Frame {
 public:
  FakeFrame() {
    setObjectName(QStringLiteral("Main"));
    auto* inner = new QWidget(this);
    auto* rows = new QVBoxLayout(inner);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_strip = new QWidget(inner);
    m_strip->setFixedHeight(ui::Pixels(StripHeight));
    rows->addWidget(m_strip);
    area = new QMdiArea(inner);
    rows->addWidget(area, 1);
    setCentralWidget(inner);
    m_clientLab = new ui::Label(m_strip);
    m_clientLab->SetName(QStringLiteral("ClientLab"));
    m_numberLab = new ui::Label(m_strip);
    m_numberLab->SetName(QStringLiteral("NumberLab"));
    m_agentLab = new ui::ComboBox(m_strip);
    m_agentLab->SetName(QStringLiteral("AgentLab"));
    m_telephonList = new ui::ComboBox(m_strip);
    m_telephonList->SetName(QStringLiteral("TelephonList"));
    m_txtSeek = new ui::TextBox(m_strip);
    m_txtSeek->SetName(QStringLiteral("txtSeek"));
    m_txtSeek->SetPlace(seekPlace);
    ui::SetFrame(this, this, area);
    ui::SetNoticeStrip(m_strip);
    resize(ui::Pixels(9600), ui::Pixels(7350));
    show();
    activateWindow();
    QApplication::setActiveWindow(this);
  }
  ~FakeFrame() override {
    CloseScreens();
    ui::SetNoticeStrip(nullptr);
    ui::SetFrame(nullptr, nullptr, nullptr);
  }

  [[nodiscard]] QString ScreenName() const override { return objectName(); }
  bool Unload() override { return false; }

  void ShowCard() override { Note(QStringLiteral("ShowCard")); }
  void NewCard() override { Note(QStringLiteral("NewCard")); }
  void SetWin(std::int32_t card, int active) override {
    Note(QStringLiteral("SetWin %1 %2").arg(card).arg(active));
  }
  [[nodiscard]] int GetActive() const override {
    if (ActiveCodeForTest) return *ActiveCodeForTest;
    const ui::Form* child = ui::ActiveChild();
    return child != nullptr && child->ScreenName() == QLatin1String("ShowTable") ? ActiveShowTable
                                                                                 : ActiveNone;
  }
  bool UnloadOtherForms() override {
    Note(QStringLiteral("UnloadOtherForms"));
    CloseScreens();
    return ui::Forms().size() == 1 && Global().CardChanged == False;
  }
  [[nodiscard]] bool CloseCardScreens() override { return CardScreensLetGo; }
  void RepaintMain() override { repaint(); }
  int CardCountZero() override {
    return velmora::CardCountZero([this] { BlankCard(); });
  }
  void ClearpMainPic() override {
    BlankCard();
    EmptySeekBox();
  }
  void WhatWasCmdEditFieldsClick() override { Note(QStringLiteral("WhatWasCmdEditFieldsClick")); }
  void ShowQuickSearch() override { Note(QStringLiteral("ShowQuickSearch")); }
  void SearchSimilarNames(const QString& word) override {
    Note(QStringLiteral("SearchSimilarNames ") + word);
  }
  void ShowValueList(CardScreen owner) override {
    Note(owner == CardScreen::Viewer ? QStringLiteral("ShowValueList Viewer")
                                     : QStringLiteral("ShowValueList Editor"));
  }
  void ShowHelpTopic(int number) override { Note(QStringLiteral("ShowHelpTopic %1").arg(number)); }
  [[nodiscard]] QString LastQuery() const override { return m_lastQuery; }
  void SetLastQuery(const QString& name) override { m_lastQuery = name; }
  void SetCaption(const QString& caption) override { setWindowTitle(caption); }
  void RememberFile() override { Note(QStringLiteral("RememberFile")); }
  void EnableDelCard(bool enabled) override { DelCardEnabled = enabled; }
  void ShowInStrip(const QString& cardName, std::int32_t card) override {
    m_clientLab->SetCaption(cardName);
    m_numberLab->SetCaption(CardNumberText(card));
  }
  [[nodiscard]] QString NameInStrip() const override { return m_clientLab->Caption(); }
  void BlankCard() override {
    m_numberLab->SetCaption({});
    m_clientLab->SetCaption({});
    m_agentLab->Clear();
    m_telephonList->Clear();
  }
  void ShowContactList(const QStringList& contacts, const QString& shown) override {
    Fill(*m_agentLab, contacts, shown);
  }
  void ShowTelephones(const QStringList& numbers, const QString& shown) override {
    Fill(*m_telephonList, numbers, shown);
  }
  void EmptySeekBox() override { m_txtSeek->SetText({}); }
  [[nodiscard]] ui::Place SeekBoxPlace() const override { return seekPlace; }
  void ResLoaderMain() override { Note(QStringLiteral("ResLoaderMain")); }
  [[nodiscard]] QIcon ScreenIcon() const override { return windowIcon(); }

  // What the strip shows, for tests to look at and to fill.
  [[nodiscard]] ui::Label& ClientLab() { return *m_clientLab; }
  [[nodiscard]] ui::Label& NumberLab() { return *m_numberLab; }
  [[nodiscard]] ui::ComboBox& AgentLab() { return *m_agentLab; }
  [[nodiscard]] ui::ComboBox& TelephonList() { return *m_telephonList; }
  [[nodiscard]] ui::TextBox& txtSeek() { return *m_txtSeek; }

  /// Run with each call that is noted, for what the real frame would do.
  std::function<void(const QString& call)> OnCall;
  QStringList Calls;
  [[nodiscard]] QString LastCall() const { return Calls.isEmpty() ? QString() : Calls.last(); }
  /// The code of the active child, in place of a screen that the test does not have.
  std::optional<int> ActiveCodeForTest;
  bool DelCardEnabled = true;
  /// What CloseCardScreens gives.
  bool CardScreensLetGo = true;
  QMdiArea* area = nullptr;

 private:
  static constexpr int StripHeight = 1950;
  static constexpr ui::Place seekPlace{.Left = 690, .Top = 0, .Width = 855, .Height = 285};

  void Note(const QString& call) {
    Calls.append(call);
    if (OnCall) OnCall(call);
  }
  static void Fill(ui::ComboBox& list, const QStringList& entries, const QString& shown) {
    list.Clear();
    for (const QString& entry : entries) list.AddItem(entry);
    list.SetText(shown);
  }
  static void CloseScreens() {
    const ui::ActivationPause pause;
    const QList<ui::Screen*> open = ui::Forms();
    for (ui::Screen* screen : open) {
      if (screen != open.first() && ui::Forms().contains(screen)) screen->Unload();
    }
  }

  QWidget* m_strip = nullptr;
  ui::Label* m_clientLab = nullptr;
  ui::Label* m_numberLab = nullptr;
  ui::ComboBox* m_agentLab = nullptr;
  ui::ComboBox* m_telephonList = nullptr;
  ui::TextBox* m_txtSeek = nullptr;
  QString m_lastQuery;
};

}  // namespace velmora::test
