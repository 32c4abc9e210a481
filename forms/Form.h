// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormManager.h"
#include "forms/Screen.h"
#include "resources/HelpTopics.h"

#include <QPointer>
#include <QWidget>

#include <functional>

class QEventLoop;
class QMdiSubWindow;

namespace velmora::ui {

enum class ShowMode { Modeless, Modal };

/// Whose doing a dialog is. One that the screen below opened itself leaves that screen active; after one that
/// the frame opened over a screen, the screen becomes active again.
enum class OpenedBy { ActiveScreen, Frame };

/// A screen of the program: a child window of the frame, or a dialog. Made by Default<T>(), or as an object
/// of its own; freed by deleteLater once it is closed, so any handler may close its own screen.
class Form : public QWidget, public Screen, public Activatable {
  Q_OBJECT

 public:
  Form(const QString& name, const QString& caption);
  ~Form() override;

  [[nodiscard]] QString ScreenName() const override { return objectName(); }
  /// Enters the screen into Forms() and runs OnLoad, the first time only.
  void Load();
  /// Loads the screen when it is not loaded yet, shows it and brings it to the front. A modal one returns
  /// when it is gone.
  void Show(ShowMode mode = ShowMode::Modeless, OpenedBy opener = OpenedBy::ActiveScreen);
  /// Takes the screen out of sight; it stays loaded.
  void Hide();
  void BringToFront();
  /// Gives the focus to the control that had it last, or to the first in the tab order.
  void TakeFocus();
  /// Closes the screen: asks OnQueryUnload, and when nothing objects leaves Forms() and Default, runs
  /// OnUnload and frees the object later. False when it was refused. Inside its own closing it gives true and
  /// does nothing.
  bool Unload() override;
  [[nodiscard]] bool IsClosing() const override { return m_closing; }

  /// Places the window in twips from the frame's upper left corner; it is kept below the frame's strip and,
  /// if it fits, wholly inside.
  void PlaceInFrame(int left, int top);
  /// The inner size in twips.
  void SetInnerSize(int width, int height);
  /// The inner size that was set; a layout's own wish counts only without one.
  [[nodiscard]] QSize sizeHint() const override;

  /// The number of the help's topic about this screen.
  [[nodiscard]] int HelpTopic() const { return m_helpTopic; }
  void SetHelpTopic(int topic) { m_helpTopic = topic; }

  /// Runs when the closing is settled; for Default<T>(), which must forget its instance then.
  void SetForget(std::function<void()> forget) { m_forget = std::move(forget); }

 protected:
  /// Once, when the screen is first touched.
  virtual void OnLoad() {}
  /// Each time the screen becomes active: when it is first shown, and when the user comes back to it from
  /// another screen. Message boxes, file dialogs and dialogs that the screen opened itself leave it active.
  virtual void OnActivate() {}
  /// May refuse the closing by setting `cancel`.
  virtual void OnQueryUnload(bool& /*cancel*/) {}
  virtual void OnUnload() {}

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Activate() override { OnActivate(); }
  void ShowModeless();
  void ShowModal(OpenedBy opener);
  /// The window that carries the screen on the desktop or in the frame.
  [[nodiscard]] QWidget* Carrier();

  QPointer<QMdiSubWindow> m_subWindow;
  QEventLoop* m_loop = nullptr;
  std::function<void()> m_forget;
  QSize m_innerSize;
  QPoint m_place{-1, -1};
  int m_helpTopic = topics::None;
  bool m_loaded = false;
  bool m_closing = false;
  bool m_settled = false;
};

/// The form in front among the frame's child windows, whether or not the frame is the desktop's active
/// window; null when there is none.
[[nodiscard]] Form* ActiveChild();

}  // namespace velmora::ui
