// SPDX-License-Identifier: MIT
#pragma once

#include "frame/Frame.h"

#include <functional>

namespace velmora {

class CardFileSession;

// The screens around the card work that the frame opens; each has one place. None asks whether a file is
// open.

/// The welcome of a user without a card file; `newFile` is the command New.
void OpenWelcome(CardFileSession& session, const std::function<void()>& newFile);
void OpenSamples(CardFileSession& session);
/// The advice on a first file, over the wizard.
void OpenCreateHelp();
/// The quick search on its cards.
void OpenQuickSearch();
/// The quick search with its search for that word done; the card screen that asks closes.
void OpenSimilarNames(const QString& word);
/// The search by name.
void OpenSearch();
void OpenQueryBuilder();
void OpenQueryList();
/// The value list of the text field CurFieldIndex of a card screen.
void OpenValueList(CardScreen owner);
void OpenFieldEditor();
void OpenOptions();
/// The description of the features that this program does not have.
void OpenBrowser();
void OpenAbout();

}  // namespace velmora
