// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace velmora::ui {

enum class MsgButtons { Ok, OkCancel, YesNo };
enum class MsgIcon { None, Information, Exclamation, Question };
enum class MsgAnswer { Ok, Cancel, Yes, No };

/// A message or question as the user sees it. CR LF is a line break; the text is plain; an empty title is the
/// program's name unless `BareTitle` asks for none. Of a question that `Destroys` something with OK, Cancel
/// is the default button; else it is the first one. A note tells below the text what the answer brings with
/// it.
struct Message {
  QString Text{};
  QString Title{};
  MsgButtons Buttons = MsgButtons::Ok;
  MsgIcon Icon = MsgIcon::None;
  bool BareTitle = false;
  bool Destroys = false;
  QString Note{};
};

/// Shows a message and gives the button pressed. Esc and the close box are Cancel, or the OK of a message
/// that has no other button; a Yes/No question takes neither. A question takes no key in its first 400 ms,
/// and no repeat of a key that was down when it came.
MsgAnswer MsgBox(const Message& message);
inline MsgAnswer MsgBox(const QString& text) { return MsgBox(Message{.Text = text}); }

/// Answers messages in place of a person, for tests; an empty function brings the boxes back.
void SetMsgBoxResponder(std::function<MsgAnswer(const Message&)> responder);

}  // namespace velmora::ui
