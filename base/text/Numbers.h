// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

/// A number as the program shows and stores it everywhere: no ".0", no exponent below 16 digits.
[[nodiscard]] QString NumberText(double number);
/// Number-to-text conversion that leaves the place of the sign: " 5", "-5".
[[nodiscard]] QString SignedNumberText(double number);
/// The number at the start of a text, spaces before it passed over; 0 when there is none ("12a" gives 12).
[[nodiscard]] double LeadingNumber(QStringView text);
/// The whole number that the digits at the start of a text make; 0 when there are none. Clamped to 32 bits.
[[nodiscard]] std::int32_t LeadingWhole(QStringView text);
/// A decimal text as a 32-bit number by its leading digits, sign included; clamped to 32 bits.
[[nodiscard]] std::int32_t AtoLong(QStringView text);
/// A card number in the form "###,###,###": 1234567 is "1,234,567", 0 is "".
[[nodiscard]] QString CardNumberText(std::int32_t number);
/// Rounds half to even.
[[nodiscard]] double RoundHalfEven(double number);
/// The whole text as a number, spaces around it allowed, with the point as the decimal separator; nothing
/// otherwise.
[[nodiscard]] std::optional<double> ParseNumber(QStringView text);

}  // namespace velmora
