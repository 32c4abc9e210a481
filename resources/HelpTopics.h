// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::topics {

// The numbers by which the program names the topics of its help.

/// The design of a card file: the wizard and the field editor.
inline constexpr int Design = 113;
inline constexpr int Cards = 118;
inline constexpr int Queries = 122;
inline constexpr int Searches = 147;
inline constexpr int ImportAndExport = 152;
/// What a screen without a topic has; the contents stand for it.
inline constexpr int None = 0;

}  // namespace velmora::topics
