// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

// Each of these opens and closes its own rows of the open file. A failure, such as no open file, ends it
// without a word and gives what stands for nothing: 0, false, "".

/// The number above the highest card; 1 for a file without cards.
[[nodiscard]] std::int32_t NextCardNumber();
/// The lowest number from 1 on that no card has.
[[nodiscard]] std::int32_t LowestFreeNumber();
[[nodiscard]] bool CardExists(std::int32_t number);
/// The main field of that card; "" when there is no such card or it has no name.
[[nodiscard]] QString CardName(std::int32_t number);

// These throw db::Error when the file cannot be read: they are steps of a routine that has its own trap.

/// The card to show when `number` is asked for: that card, or else the nearest by number in the direction of
/// travel from `current`, or else the nearest on the other side. Nothing when `number` is the current card
/// and gone, and in a file without cards.
[[nodiscard]] std::optional<std::int32_t> NearestCard(std::int32_t number, std::int32_t current);
/// What the card viewer shows: the nearest card, or else the first stored one.
[[nodiscard]] std::optional<std::int32_t> CardToShow(std::int32_t number, std::int32_t current);

/// Deletes the card with its contacts, calls and prices. Its reminders stay in the file.
void DeleteCard(std::int32_t number);

}  // namespace velmora
