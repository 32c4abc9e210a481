// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace velmora {

/// What a start of the viewer asks for.
struct HelpRequest {
  /// The whole path of the help file, with its ending.
  QString File;
  /// The number or keyword of a topic; empty: the contents.
  QString Topic;
  /// What the desktop gave the start, so that it lets the window come to the front.
  QString ActivationToken;

  bool operator==(const HelpRequest&) const = default;
};

/// Reads "FILE [TOPIC]", the arguments behind the program's name; nothing when they are something else. A
/// FILE without an ending gets ".qch".
[[nodiscard]] std::optional<HelpRequest> ReadArguments(const QStringList& arguments);

/// A request as one process sends it to another, and back; nothing when the bytes are not one.
[[nodiscard]] QByteArray Packed(const HelpRequest& request);
[[nodiscard]] std::optional<HelpRequest> Unpacked(const QByteArray& bytes);

}  // namespace velmora
