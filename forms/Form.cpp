// SPDX-License-Identifier: MIT
#include "forms/Form.h"

#include "forms/Twips.h"
#include "forms/Waiting.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace velmora::ui {

Form::Form(const QString& name, const QString& caption) {
  setObjectName(name);
  setWindowTitle(caption);
  setAutoFillBackground(true);
  setFocusPolicy(Qt::NoFocus);
}

Form::~Form() {
  FormManager& manager = FormManager::Instance();
  LeaveScreen(this);
  manager.ForgetActive(this);
  manager.LeaveDialog(this);
}

void Form::Load() {
  if (m_loaded) return;
  m_loaded = true;
  EnterScreen(this);
  OnLoad();
}

void Form::Show(ShowMode mode, OpenedBy opener) {
  if (m_settled) return;
  Load();
  // Its own load may have closed it.
  if (m_settled) return;
  if (mode == ShowMode::Modal) {
    ShowModal(opener);
  } else {
    ShowModeless();
  }
}

void Form::ShowModeless() {
  FormManager& manager = FormManager::Instance();
  if (manager.Area() != nullptr && m_subWindow.isNull()) {
    m_subWindow = new QMdiSubWindow;
    m_subWindow->setWidget(this);
    // It takes the icon of its content once; one that changes later has to be handed on.
    connect(this, &QWidget::windowIconChanged, m_subWindow.data(), &QWidget::setWindowIcon);
    m_subWindow->setAttribute(Qt::WA_DeleteOnClose, false);
    m_subWindow->setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    manager.PauseActivation();
    manager.Area()->addSubWindow(m_subWindow, m_subWindow->windowFlags());
    m_subWindow->adjustSize();
    setVisible(true);
    const QPoint wanted = m_place.x() < 0 ? QPoint(0, 0) : m_place;
    QPoint place = manager.Area()->viewport()->mapFrom(manager.Frame(), wanted);
    const QSize room = manager.Area()->viewport()->size() - m_subWindow->size();
    place.setX(std::clamp(place.x(), 0, std::max(0, room.width())));
    place.setY(std::clamp(place.y(), 0, std::max(0, room.height())));
    m_subWindow->move(place);
    m_subWindow->show();
    manager.Area()->setActiveSubWindow(m_subWindow);
    manager.ResumeActivation();
  } else {
    Carrier()->show();
    BringToFront();
  }
  if (!m_settled) manager.MakeActive(this);
  if (!m_settled) TakeFocus();
}

void Form::TakeFocus() {
  // The activation step may have chosen a box already.
  if (focusWidget() != nullptr) {
    focusWidget()->setFocus(Qt::OtherFocusReason);
    return;
  }
  for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
    const bool takes = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && next->focusProxy() == nullptr;
    if (takes && isAncestorOf(next) && next->isEnabled() && next->isVisibleTo(this)) {
      next->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

void Form::ShowModal(OpenedBy opener) {
  FormManager& manager = FormManager::Instance();
  QWidget* over = manager.DialogParent();
  setParent(over, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  setWindowModality(Qt::ApplicationModal);
  if (m_innerSize.isValid()) {
    setFixedSize(m_innerSize);
  } else {
    adjustSize();
  }
  if (over != nullptr) {
    const QRect frame = over->window()->frameGeometry();
    move(frame.center() - rect().center());
  }
  manager.EnterDialog(this);
  const Activatable* below = manager.Active();
  QEventLoop loop;
  m_loop = &loop;
  const QPointer<Form> self(this);
  show();
  activateWindow();
  OnActivate();
  if (self && !m_settled) TakeFocus();
  // The activation step may have closed it already.
  if (self && m_loop != nullptr) loop.exec(QEventLoop::DialogExec);
  if (self) {
    m_loop = nullptr;
    manager.LeaveDialog(this);
  }
  // A screen that the dialog itself brought up is active already.
  if (opener == OpenedBy::Frame && below != nullptr && below == manager.Active()) manager.ActivateAgain();
}

QWidget* Form::Carrier() { return m_subWindow ? static_cast<QWidget*>(m_subWindow) : this; }

void Form::Hide() {
  Carrier()->hide();
  FormManager::Instance().ForgetActive(this);
}

void Form::BringToFront() {
  if (m_subWindow && FormManager::Instance().Area() != nullptr) {
    if (m_subWindow->isMinimized()) m_subWindow->showNormal();
    FormManager::Instance().Area()->setActiveSubWindow(m_subWindow);
  }
  Carrier()->raise();
}

bool Form::Unload() {
  if (m_closing) return true;
  m_closing = true;
  if (m_loaded) {
    bool cancel = false;
    OnQueryUnload(cancel);
    if (cancel) {
      m_closing = false;
      return false;
    }
  }
  m_settled = true;
  FormManager& manager = FormManager::Instance();
  LeaveScreen(this);
  if (m_forget) m_forget();
  if (m_loaded) OnUnload();
  manager.ForgetActive(this);
  if (m_subWindow) {
    QMdiSubWindow* carrier = m_subWindow;
    carrier->hide();
    if (manager.Area() != nullptr) manager.Area()->removeSubWindow(carrier);
    carrier->deleteLater();
  } else {
    hide();
    deleteLater();
  }
  manager.LeaveDialog(this);
  if (m_loop != nullptr) {
    m_loop->quit();
    m_loop = nullptr;
  }
  return true;
}

void Form::PlaceInFrame(int left, int top) { m_place = QPoint(Pixels(left), Pixels(top)); }

void Form::SetInnerSize(int width, int height) {
  m_innerSize = QSize(Pixels(width), Pixels(height));
  setMinimumSize(m_innerSize);
  resize(m_innerSize);
}

QSize Form::sizeHint() const { return m_innerSize.isValid() ? m_innerSize : QWidget::sizeHint(); }

void Form::closeEvent(QCloseEvent* event) { event->setAccepted(!IsRepainting() && Unload()); }

void Form::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    Unload();
    return;
  }
  QWidget::keyPressEvent(event);
}

Form* ActiveChild() { return qobject_cast<Form*>(FormManager::Instance().Child()); }

}  // namespace velmora::ui
