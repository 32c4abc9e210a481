// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

class QTextEdit;

namespace velmora {

/// The description of the features that the program does not have. Whatever button brings it up, it is the
/// same document, read from the file beside the program's other data.
class frmBrowser final : public ui::Form {
  Q_OBJECT

 public:
  frmBrowser();

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QTextEdit* Text1 = nullptr;
  bool m_isMissing = false;
};

}  // namespace velmora
