// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <functional>

class QEventLoop;
class QMdiArea;
class QMdiSubWindow;

namespace velmora::ui {

/// An open screen: the frame or a Form.
class Screen {
 public:
  virtual ~Screen() = default;
  /// The screen's name ("ShowTable").
  [[nodiscard]] virtual QString ScreenName() const = 0;
  /// Closes the screen; false when it refused.
  virtual bool Unload() = 0;
};

/// The open screens in the order in which they were loaded; the frame is always the first.
[[nodiscard]] const QList<Screen*>& Forms();

/// The open screen of that name; null when there is none.
[[nodiscard]] Screen* FindScreen(QStringView name);

/// Makes a frame the home of all screens: the parent of dialogs, and its area the place of modeless screens.
/// It is entered as the first of Forms() until it is destroyed or null is set.
void SetFrame(QWidget* window, Screen* screen, QMdiArea* area);

enum class ShowMode { Modeless, Modal };

/// Whose doing a dialog is. One that the screen below opened itself leaves that screen active; after one that
/// the frame opened over a screen, the screen becomes active again.
enum class OpenedBy { ActiveScreen, Frame };

/// A screen of the program: a child window of the frame, or a dialog. Made by Default<T>(), or as an object
/// of its own; freed by deleteLater once it is closed, so any handler may close its own screen.
class Form : public QWidget, public Screen {
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
  [[nodiscard]] bool IsClosing() const { return m_closing; }

  /// Places the window in twips from the frame's upper left corner; it is kept below the frame's strip and,
  /// if it fits, wholly inside.
  void PlaceInFrame(int left, int top);
  /// The inner size in twips.
  void SetInnerSize(int width, int height);
  /// The inner size that was set; a layout's own wish counts only without one.
  [[nodiscard]] QSize sizeHint() const override;

  /// Runs when a default instance's closing is settled; Default<T>() sets it.
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
  friend class FormManager;
  void ShowModeless();
  void ShowModal(OpenedBy opener);
  /// The window that carries the screen on the desktop or in the frame.
  [[nodiscard]] QWidget* Carrier();

  QPointer<QMdiSubWindow> m_subWindow;
  QEventLoop* m_loop = nullptr;
  std::function<void()> m_forget;
  QSize m_innerSize;
  QPoint m_place{-1, -1};
  bool m_loaded = false;
  bool m_closing = false;
  bool m_settled = false;
};

/// The form in front among the frame's child windows, whether or not the frame is the desktop's active
/// window; null when there is none.
[[nodiscard]] Form* ActiveChild();

/// A screen's default instance, made and loaded when first touched; after its closing is settled, the next
/// touch makes a new one.
template <typename T>
T& Default() {
  static QPointer<T> instance;
  if (instance.isNull()) {
    auto* made = new T;
    instance = made;
    made->SetForget([] { instance.clear(); });
    made->Load();
    // Its own load may have closed it; it lives on until the caller is done.
    return *made;
  }
  return *instance;
}

/// While it lives, screens that come to the front because others close are not activated; the one in front at
/// its end is, when it was not active before.
class ActivationPause final {
 public:
  ActivationPause();
  ~ActivationPause();
  ActivationPause(const ActivationPause&) = delete;
  ActivationPause& operator=(const ActivationPause&) = delete;
};

/// Lets pending events run inside a long routine, but nothing that the user typed or clicked.
void Yield();

/// Lets windows repaint inside work that must not be disturbed: what the user types and clicks waits until
/// the work is done, and no window closes meanwhile.
void LetRepaint();
/// Whether that is going on.
[[nodiscard]] bool IsRepainting();

/// Waits that many milliseconds, letting events run but for the user's.
void Pause(int milliseconds);

/// The hourglass as long as it lives.
class Hourglass final {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace velmora::ui
