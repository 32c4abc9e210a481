// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FileDialog.h"

#include <QString>

namespace velmora {

class Frame;
class MainMenu;

/// The path from a name on the disk to an open card file and back: Open, New, Repair File, the recent files,
/// and the end of the run. Works on the global state and the frame; owns the program's one file dialog.
class CardFileSession final {
 public:
  CardFileSession(Frame& frame, MainMenu& menu) : m_frame(frame), m_menu(menu) {}

  /// Opens the file that FilePath names and shows its first card. A file that cannot be opened changes
  /// nothing.
  void OpenCardFile();
  /// The same with another file, which FilePath names as soon as it is open; false when it cannot be opened.
  bool OpenSample(const QString& name);
  /// Opens the file that the last run left, without a screen.
  void OpenLastFile();
  void Open();
  /// Asks for one of the samples, from the user's own copies of them, and opens it.
  void OpenSampleList();
  /// Asks for the name of a file that does not exist yet and shows the wizard on it.
  void CreateData();
  void New();
  void Repair();
  void OpenRecent(int place);
  /// Stores which file is open and its card, and puts it first in the stored recent list.
  void RememberFile();
  /// Fills the menu from the stored recent list.
  void LoadRecent();
  /// Saves the session, compacts the open file in place and ends the process.
  void QuitAndCompact();

 private:
  /// Closes the screens of the open file, before FilePath names another; when one refuses, FilePath goes back
  /// and false is given.
  [[nodiscard]] bool CloseScreens();
  [[nodiscard]] bool NameIsTaken() const;
  void OpenAndShow(const QString& path);

  Frame& m_frame;
  MainMenu& m_menu;
  ui::FileDialog DialogData;
};

}  // namespace velmora
