// SPDX-License-Identifier: MIT
#include "forms/FormManager.h"

#include "forms/Screen.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace velmora::ui {

FormManager& FormManager::Instance() {
  static FormManager manager;
  return manager;
}

void FormManager::SetFrame(QWidget* window, Screen* screen, QMdiArea* area) {
  if (m_area) disconnect(m_area, nullptr, this, nullptr);
  if (m_frameScreen != nullptr) LeaveScreen(m_frameScreen);
  m_frame = window;
  m_frameScreen = screen;
  m_area = area;
  if (screen != nullptr) EnterFrame(screen);
  if (area != nullptr) connect(area, &QMdiArea::subWindowActivated, this, &FormManager::OnSubWindowActivated);
}

QWidget* FormManager::Frame() const { return m_frame; }

QMdiArea* FormManager::Area() const { return m_area; }

QWidget* FormManager::Child() const {
  if (!m_area) return nullptr;
  const QMdiSubWindow* window = m_area->currentSubWindow();
  return window == nullptr || window->isHidden() ? nullptr : window->widget();
}

void FormManager::OnSubWindowActivated(QMdiSubWindow* window) {
  // No window is told when the frame itself loses the desktop's focus: the child stays the active screen.
  if (window == nullptr || m_paused > 0) return;
  if (auto* screen = dynamic_cast<Activatable*>(window->widget()); screen != nullptr && !screen->IsClosing())
    MakeActive(screen);
}

void FormManager::MakeActive(Activatable* screen) {
  if (m_active == screen) return;
  m_active = screen;
  screen->Activate();
}

void FormManager::ForgetActive(const Activatable* screen) {
  if (m_active == screen) m_active = nullptr;
}

void FormManager::ActivateAgain() {
  if (m_active != nullptr && !m_active->IsClosing()) m_active->Activate();
}

void FormManager::ResumeActivation() {
  if (--m_paused > 0) return;
  if (auto* child = dynamic_cast<Activatable*>(Child()); child != nullptr && !child->IsClosing())
    MakeActive(child);
}

QWidget* FormManager::DialogParent() const { return m_dialogs.isEmpty() ? m_frame.data() : m_dialogs.last(); }

void SetFrame(QWidget* window, Screen* screen, QMdiArea* area) {
  FormManager::Instance().SetFrame(window, screen, area);
}

}  // namespace velmora::ui
