// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace velmora::ui {

/// The program's one file dialog, with the values that stay in it between uses.
struct FileDialog {
  /// "Database,*.ddb|*.ddb": names and patterns in pairs, parted by bars.
  QString Filter;
  QString DialogTitle;
  QString InitDir;
  /// The full path chosen, empty when the dialog was left without a choice; and the name of the file chosen
  /// last.
  QString FileName;
  QString FileTitle;

  /// The open form: takes any typed name, existing or not, in the directory in view when it names none. The
  /// name of a file that does not exist and has no ending gets the ending of the filter.
  void ShowOpen();
};

/// Chooses a path in place of a person, for tests; an empty function brings the dialog back.
void SetFileDialogResponder(std::function<QString(const FileDialog&)> responder);

}  // namespace velmora::ui
