// SPDX-License-Identifier: MIT
#pragma once

#include "help/HelpRequest.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace velmora {

class HelpPage;
class HelpWindow;

/// The window of the help over the manual, with a cache and settings of its own.
class HelpFixture : public testing::Test {
 protected:
  HelpFixture();
  ~HelpFixture() override;

  [[nodiscard]] static QString Manual();
  [[nodiscard]] QString PathOf(const QString& name) const { return m_folder.path() + u'/' + name; }
  /// A copy of the manual that a test may spoil.
  [[nodiscard]] QString CopyOfManual(const QString& name) const;

  /// Opens the window at a topic of the manual, or shows that topic in the open one.
  HelpWindow& Show(const QString& topic = {});
  void CloseWindow();
  [[nodiscard]] HelpPage& Page() const;
  /// The name of the page in view, with the place on it.
  [[nodiscard]] QString PageName() const;
  [[nodiscard]] QString NoticeText() const;
  void Trigger(const QString& action) const;

  QTemporaryDir m_folder;
  std::unique_ptr<HelpWindow> m_window;
};

}  // namespace velmora
