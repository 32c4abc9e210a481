// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Command.h"
#include "shell/ToolTable.h"

#include <functional>
#include <span>

namespace velmora {

class CardFileSession;
class Frame;

/// Runs what the menu and the toolbars command. Works on the frame, which owns it; what a command needs of a
/// card file or of another screen, it asks there.
class Commands final {
 public:
  /// What only the frame's own window can do.
  struct WindowDoings {
    /// Every way's Quit: asks the card screens and ends the run.
    std::function<void()> Quit;
    std::function<void()> Minimise;
  };
  Commands(Frame& frame, CardFileSession& session, WindowDoings window)
      : m_frame(frame), m_session(session), m_window(std::move(window)) {}

  void Run(Command command);
  /// A click on a toolbar button.
  void Press(ToolRows bar, int index);
  void New();

 private:
  /// What one command runs.
  struct Entry {
    Command Which;
    void (*Do)(Commands& commands);
  };
  /// Every command.
  [[nodiscard]] static std::span<const Entry> Entries();

  void DeleteCard();
  void FieldEditor();
  /// The program behind a shortcut button; the frame makes room for it.
  void StartProgram(int number);
  /// Opens a screen that is of no use without cards.
  void OpenOverCards(const std::function<void()>& open);

  Frame& m_frame;
  CardFileSession& m_session;
  WindowDoings m_window;
};

}  // namespace velmora
