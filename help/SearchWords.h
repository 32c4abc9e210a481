// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// The words of what a user typed: runs of letters and digits, each once.
[[nodiscard]] QStringList SearchWords(const QString& typed);
/// The question to the search index for pages that hold all of the words, or words that begin with them.
/// Everything else that the index would take for a sign of its own is left out.
[[nodiscard]] QString SearchQuestion(const QStringList& words);

}  // namespace velmora
