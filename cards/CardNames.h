// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

// Whether other cards have a name already. `column` is the main field; a pattern character in a text is a
// pattern character. These answer false when the file cannot be asked; the screens show the message that goes
// with true.

/// A card other than the current one has exactly this name.
[[nodiscard]] bool NameTaken(const QString& text, const QString& column);
/// Any card has exactly this name: for a card that is not stored yet.
[[nodiscard]] bool NameTakenNew(const QString& text, const QString& column);
/// A card other than the current one has the first word of the text somewhere in its name.
[[nodiscard]] bool SimilarNameOther(const QString& text, const QString& column);
/// Any card has the first word of the text somewhere in its name: Ann finds Joanna.
[[nodiscard]] bool SimilarName(const QString& text, const QString& column);

/// The first card, in the order of storing, that has exactly this name. Throws db::Error.
[[nodiscard]] std::optional<std::int32_t> FirstCardNamed(const QString& text, const QString& column);

/// The text up to its first space, or all of it when it has none.
[[nodiscard]] QString FirstWord(const QString& text);

}  // namespace velmora
