// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QMdiArea>
#include <QObject>
#include <QPointer>

namespace velmora::ui {

/// Knows the frame, the open screens and which of them is active. One instance; used by Form and its helpers
/// alone.
class FormManager final : public QObject {
  Q_OBJECT

 public:
  static FormManager& Instance();

  void SetFrame(QWidget* window, Screen* screen, QMdiArea* area);
  [[nodiscard]] QWidget* Frame() const { return m_frame; }
  [[nodiscard]] QMdiArea* Area() const { return m_area; }
  [[nodiscard]] const QList<Screen*>& Open() const { return m_open; }

  void Enter(Screen* screen) { m_open.append(screen); }
  void Leave(Screen* screen) { m_open.removeAll(screen); }
  [[nodiscard]] Form* Child() const;
  /// The screen that was activated last and is still open, or null.
  [[nodiscard]] const Form* Active() const { return m_active; }
  /// Makes a form the active one; its activation step runs when another was active before.
  void MakeActive(Form* form);
  void ForgetActive(const Form* form);
  /// Runs the active form's activation step again, as after a dialog that the frame opened over it.
  void ActivateAgain();
  void PauseActivation() { ++m_paused; }
  void ResumeActivation();

  /// The window that a new dialog stands over.
  [[nodiscard]] QWidget* DialogParent() const;
  void EnterDialog(Form* form) { m_dialogs.append(form); }
  void LeaveDialog(Form* form) { m_dialogs.removeAll(form); }

 private:
  FormManager() = default;
  void OnSubWindowActivated(QMdiSubWindow* window);

  QPointer<QWidget> m_frame;
  QPointer<QMdiArea> m_area;
  Screen* m_frameScreen = nullptr;
  QPointer<Form> m_active;
  QList<Screen*> m_open;
  QList<Form*> m_dialogs;
  int m_paused = 0;
};

}  // namespace velmora::ui
