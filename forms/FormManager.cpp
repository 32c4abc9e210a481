// SPDX-License-Identifier: MIT
#include "forms/FormManager.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace velmora::ui {

FormManager& FormManager::Instance() {
  static FormManager manager;
  return manager;
}

void FormManager::SetFrame(QWidget* window, Screen* screen, QMdiArea* area) {
  if (m_area) disconnect(m_area, nullptr, this, nullptr);
  if (m_frameScreen != nullptr) Leave(m_frameScreen);
  m_frame = window;
  m_frameScreen = screen;
  m_area = area;
  if (screen != nullptr) m_open.prepend(screen);
  if (area != nullptr) connect(area, &QMdiArea::subWindowActivated, this, &FormManager::OnSubWindowActivated);
}

Form* FormManager::Child() const {
  if (!m_area) return nullptr;
  QMdiSubWindow* window = m_area->currentSubWindow();
  if (window == nullptr || window->isHidden()) return nullptr;
  return qobject_cast<Form*>(window->widget());
}

void FormManager::OnSubWindowActivated(QMdiSubWindow* window) {
  // No window is told when the frame itself loses the desktop's focus: the child stays the active screen.
  if (window == nullptr || m_paused > 0) return;
  if (auto* form = qobject_cast<Form*>(window->widget()); form != nullptr && !form->IsClosing())
    MakeActive(form);
}

void FormManager::MakeActive(Form* form) {
  if (m_active == form) return;
  m_active = form;
  form->OnActivate();
}

void FormManager::ForgetActive(const Form* form) {
  if (m_active == form) m_active.clear();
}

void FormManager::ActivateAgain() {
  if (m_active && !m_active->IsClosing()) m_active->OnActivate();
}

void FormManager::ResumeActivation() {
  if (--m_paused > 0) return;
  if (Form* child = Child(); child != nullptr && !child->IsClosing()) MakeActive(child);
}

QWidget* FormManager::DialogParent() const { return m_dialogs.isEmpty() ? m_frame.data() : m_dialogs.last(); }

const QList<Screen*>& Forms() { return FormManager::Instance().Open(); }

Screen* FindScreen(QStringView name) {
  for (Screen* screen : Forms()) {
    if (screen->ScreenName() == name) return screen;
  }
  return nullptr;
}

void SetFrame(QWidget* window, Screen* screen, QMdiArea* area) {
  FormManager::Instance().SetFrame(window, screen, area);
}

ActivationPause::ActivationPause() { FormManager::Instance().PauseActivation(); }
ActivationPause::~ActivationPause() { FormManager::Instance().ResumeActivation(); }

Form* ActiveChild() { return FormManager::Instance().Child(); }

}  // namespace velmora::ui
