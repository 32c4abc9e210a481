// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QMdiArea;
class QMdiSubWindow;
class QWidget;

namespace velmora::ui {

class Screen;

/// What can become the active screen.
class Activatable {
 public:
  /// Runs its activation step.
  virtual void Activate() = 0;
  /// Whether it is on its way out and must not be activated any more.
  [[nodiscard]] virtual bool IsClosing() const = 0;

 protected:
  ~Activatable() = default;
};

/// Knows the frame, which of its child windows is active, and the dialogs that stand over it. One instance;
/// used by the screens and their helpers alone.
class FormManager final : public QObject {
  Q_OBJECT

 public:
  static FormManager& Instance();

  void SetFrame(QWidget* window, Screen* screen, QMdiArea* area);
  [[nodiscard]] QWidget* Frame() const;
  [[nodiscard]] QMdiArea* Area() const;

  /// The screen in front among the frame's child windows; null when there is none.
  [[nodiscard]] QWidget* Child() const;
  /// The screen that was activated last and is still open, or null.
  [[nodiscard]] const Activatable* Active() const { return m_active; }
  /// Makes a screen the active one; its activation step runs when another was active before.
  void MakeActive(Activatable* screen);
  void ForgetActive(const Activatable* screen);
  /// Runs the active screen's activation step again, as after a dialog that the frame opened over it.
  void ActivateAgain();
  void PauseActivation() { ++m_paused; }
  void ResumeActivation();

  /// The window that a new dialog stands over.
  [[nodiscard]] QWidget* DialogParent() const;
  void EnterDialog(QWidget* dialog) { m_dialogs.append(dialog); }
  void LeaveDialog(QWidget* dialog) { m_dialogs.removeAll(dialog); }

 private:
  FormManager() = default;
  void OnSubWindowActivated(QMdiSubWindow* window);

  QPointer<QWidget> m_frame;
  QPointer<QMdiArea> m_area;
  Screen* m_frameScreen = nullptr;
  Activatable* m_active = nullptr;
  QList<QWidget*> m_dialogs;
  int m_paused = 0;
};

/// Makes a frame the home of all screens: the parent of dialogs, and its area the place of modeless screens.
/// It is entered as the first of Forms() until it is destroyed or null is set.
void SetFrame(QWidget* window, Screen* screen, QMdiArea* area);

}  // namespace velmora::ui
