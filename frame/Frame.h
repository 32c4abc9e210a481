// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QIcon>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace velmora {

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
  /// Closes every screen but the frame. False when one refused and stays open, or a card is still unsaved:
  /// what asked for the closing must stop then.
  virtual bool UnloadOtherForms() = 0;
  /// Closes the card screens as their own close boxes do; false when one refused, and nothing more is asked.
  [[nodiscard]] virtual bool CloseCardScreens() = 0;
  virtual void RepaintMain() = 0;
  /// 1 when the open file has no card (the strip is blanked then), 0 when it has some, or no file is open.
  virtual int CardCountZero() = 0;
  /// The test that nearly every command makes: a file is open and has cards.
  [[nodiscard]] bool OpenWithCards();
  /// Blanks the strip: the card, the clock and the box for a number.
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
  /// Stores the open file and its card as what the next start comes up with, when a file was opened or made:
  /// whatever becomes of this run.
  virtual void RememberFile() = 0;
  /// Enables or disables the menu's Delete Card.
  virtual void EnableDelCard(bool enabled) = 0;

  /// Shows a card's name and number in the strip.
  virtual void ShowInStrip(const QString& cardName, std::int32_t card) = 0;
  /// The name of the card that the strip shows.
  [[nodiscard]] virtual QString NameInStrip() const = 0;
  /// Blanks what the strip shows of a card: its name and number, its contacts and their numbers.
  virtual void BlankCard() = 0;
  /// Fills the strip's list of contacts; `shown` is the one in view, empty for none.
  virtual void ShowContactList(const QStringList& contacts, const QString& shown) = 0;
  /// The same for the telephone numbers of the contact in view.
  virtual void ShowTelephones(const QStringList& numbers, const QString& shown) = 0;
  virtual void EmptySeekBox() = 0;
  /// Where the box for a card number stands: the page buttons of the screens line up with it.
  [[nodiscard]] virtual ui::Place SeekBoxPlace() const = 0;

  /// Sets the background of the strip from the settings.
  virtual void ResLoaderMain() = 0;
  /// The picture that the screens bear as their icon: the strip's background, where it has one.
  [[nodiscard]] virtual QIcon ScreenIcon() const = 0;

 protected:
  Frame();
  virtual ~Frame();
};

}  // namespace velmora
