// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/ProgramStart.h"
#include "cardfile/CardDesign.h"
#include "shell/Main.h"
#include "tests/support/Environment.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

class QAction;

namespace velmora {

/// A run of the whole program in this process: settings and files of its own, an end of the process that is
/// only noted, and a person who answers file dialogs from a list.
class MainFixture : public ::testing::Test {
 protected:
  MainFixture();
  ~MainFixture() override;

  /// A closed card file with one text field "City" and cards of those numbers, called "Card 1"...
  QString MakeFile(const QString& name, const std::vector<int>& cards);
  [[nodiscard]] QString PathOf(const QString& name) const { return m_dir.filePath(name); }
  /// Makes the frame and runs its load step; a second start forgets the first run's state.
  Main& Start() { return StartWith({}); }
  /// The same with a file named on the command line.
  Main& StartWith(const QString& file);
  /// Starts on a file that the last run left.
  Main& StartOn(const QString& path, int card = 1);
  /// Gives this run a desktop without programs; nor does it have the symbols of the toolbars.
  void UseOwnDesktop();
  /// Adds a program to that desktop: an entry of that file name, whose command is its name.
  void InstallProgram(const QString& file, const QByteArray& lines = {}) const;
  /// The paths that the file dialog gives, in turn; "" is a dialog left without a choice.
  void ChooseFiles(const QStringList& paths) { m_choices = paths; }
  [[nodiscard]] QAction& Entry(const QString& name) const;
  void Trigger(const QString& name) const;
  [[nodiscard]] static QStringList OpenScreens();
  [[nodiscard]] static QStringList StoredRecent();
  [[nodiscard]] static QString Stored(const QString& section, const QString& key);
  template <typename T>
  [[nodiscard]] T& Find(const QString& name) const {
    T* found = m_main->findChild<T*>(name);
    if (found == nullptr) throw std::logic_error("no control " + name.toStdString());
    return *found;
  }

  std::unique_ptr<Main> m_main;
  /// Whether a welcome that comes up at a start is closed at once.
  bool m_turnsWelcomeDown = true;
  // What the file dialog was called, and where it started.
  QStringList m_titles;
  QStringList m_folders;
  /// The programs that were to be started; none of them was.
  QList<ProgramStart> m_started;
  int m_ends = 0;

 private:
  QTemporaryDir m_dir;
  test::Environment m_environment;
  QStringList m_choices;
};

}  // namespace velmora
