// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

namespace velmora::test {

/// A screen that stands for any other.
class OtherScreen final : public ui::Form {
 public:
  OtherScreen() : Form(QStringLiteral("OtherScreen"), QStringLiteral("Other")) {}
};

/// A screen that may refuse to close, and counts how often it was asked.
class AskingScreen final : public ui::Form {
 public:
  explicit AskingScreen(const QString& name) : Form(name, name) { Load(); }

  int Asked = 0;
  bool Refuses = true;

 protected:
  void OnQueryUnload(bool& cancel) override {
    ++Asked;
    cancel = Refuses;
  }
};

}  // namespace velmora::test
