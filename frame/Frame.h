// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Flag.h"

#include <QIcon>
#include <QString>

#include <cstdint>

namespace velmora {

namespace ui {
class ComboBox;
class Label;
class TextBox;
struct FileDialog;
}  // namespace ui

/// The codes that GetActive tells of the child in front.
enum ActiveCode : int { ActiveNone = 0, ActiveShowTable = 2, ActiveQuickSearch = 8, ActiveSearch = 9 };

/// Which of the two card screens a value list fills in.
enum class CardScreen { Viewer, Editor };

/// What screens may ask of the frame, Main. One instance as long as the program runs.
class Frame {
 public:
  /// The frame; there must be one.
  [[nodiscard]] static Frame& Main();

  /// Closes what is open and shows the card viewer, when a file with cards is open.
  virtual void ShowCard() = 0;
  /// Shows the card editor for a new card, when a file is open.
  virtual void NewCard() = 0;
  /// Shows a card: in the viewer when that is the code of the active child, else as the current card of the
  /// strip.
  virtual void SetWin(std::int32_t card, int active) = 0;
  [[nodiscard]] virtual int GetActive() const = 0;
  /// Closes every screen but the frame; one that refuses stays open, which CardChanged tells.
  virtual void UnloadOtherForms() = 0;
  virtual void RepaintMain() = 0;
  /// 1 when the open file has no card (the strip is blanked then), 0 when it has some, or no file is open.
  virtual int CardCountZero() = 0;
  /// Blanks the strip.
  virtual void ClearpMainPic() = 0;
  /// The field editor, when a file with cards is open.
  virtual void WhatWasCmdEditFieldsClick() = 0;

  /// Opens the quick search on its cards.
  virtual void ShowQuickSearch() = 0;
  /// Opens the quick search on the cards whose names hold that word, and closes the card screen that asks.
  virtual void SearchSimilarNames(const QString& word) = 0;
  /// Opens the value list of the text field CurFieldIndex over a card screen.
  virtual void ShowValueList(CardScreen owner) = 0;
  /// Opens the help at the topic of that number.
  virtual void ShowHelpTopic(int number) = 0;

  [[nodiscard]] virtual QString LastQuery() const = 0;
  virtual void SetLastQuery(const QString& name) = 0;

  virtual void SetCaption(const QString& caption) = 0;
  /// Enables or disables the menu's Delete Card.
  virtual void EnableDelCard(bool enabled) = 0;
  [[nodiscard]] virtual ui::Label& ClientLab() = 0;
  [[nodiscard]] virtual ui::Label& NumberLab() = 0;
  [[nodiscard]] virtual ui::ComboBox& AgentLab() = 0;
  [[nodiscard]] virtual ui::ComboBox& TelephonList() = 0;
  /// Its place in twips lines up the page buttons of the card screens.
  [[nodiscard]] virtual ui::TextBox& txtSeek() = 0;
  /// The picture that the screens bear as their icon.
  [[nodiscard]] virtual QIcon ScreenIcon() const = 0;

 protected:
  Frame();
  virtual ~Frame();
};

}  // namespace velmora
