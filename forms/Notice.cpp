// SPDX-License-Identifier: MIT
#include "forms/Notice.h"

#include "base/system/Clock.h"
#include "forms/NoticeLabel.h"
#include "forms/Screen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include <optional>
#include <utility>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Lifetime = 8000;     // milliseconds
constexpr int BetweenLooks = 100;  // milliseconds

bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
         key == Qt::Key_AltGr || key == Qt::Key_CapsLock;
}

/// Shortcuts come as the first alone.
bool IsPress(const QEvent& event) {
  return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress;
}

QWidget* ScreenOf(QWidget* widget) {
  while (!widget->isWindow() && dynamic_cast<Screen*>(widget) == nullptr) widget = widget->parentWidget();
  return widget;
}

bool IsUnderADialog(const QWidget& screen) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal->window() != screen.window() && !modal->isAncestorOf(&screen);
}

/// The one notice of the program, in view or waiting.
class NoticeBoard final : public QObject {
 public:
  static NoticeBoard& Instance() {
    static QPointer<NoticeBoard> board;
    if (board.isNull()) board = new NoticeBoard(qApp);
    return *board;
  }

  void SetStrip(QWidget* strip) {
    m_strip = strip;
    // The frame goes, and who was to be told with it: a notice that waits must not come up in the next one.
    if (strip == nullptr) Drop();
  }

  void Put(QWidget* about, const QString& text, NoticeLife life) {
    Drop();
    m_notice = Notice{.About = about, .Text = text, .Life = life};
    if (about != nullptr) m_freed = connect(about, &QObject::destroyed, this, &NoticeBoard::Drop);
    Look();
    if (m_notice) m_looks.start();
  }

  void Drop() {
    disconnect(m_freed);
    m_notice.reset();
    m_looks.stop();
    TakeDown();
  }

  [[nodiscard]] QString InView() const { return m_label ? m_label->text() : QString(); }

  bool eventFilter(QObject* target, QEvent* event) override {
    // Not by its value: events come from the label too while it is being destroyed, and is no label any more.
    if (m_label.isNull()) return false;
    const bool isHidden = event->type() == QEvent::Hide && target == m_notice->About;
    if (isHidden || (IsPress(*event) && EndsIt(target, *static_cast<QKeyEvent*>(event)))) Drop();
    return false;
  }

 private:
  struct Notice {
    QPointer<QWidget> About;
    QString Text;
    NoticeLife Life = NoticeLife::Seconds;
  };

  explicit NoticeBoard(QApplication* application) : QObject(application) {
    application->installEventFilter(this);
    m_looks.setObjectName(u"NoticeLooks"_s);
    m_looks.setInterval(BetweenLooks);
    connect(&m_looks, &QTimer::timeout, this, &NoticeBoard::Look);
  }

  /// A key in the notice's own window. The one that brought it does not end it, nor do its repeats.
  [[nodiscard]] bool EndsIt(const QObject* target, const QKeyEvent& key) const {
    const auto* widget = qobject_cast<const QWidget*>(target);
    return widget != nullptr && widget->window() == m_label->window() && m_isSettled && !key.isAutoRepeat() &&
           !IsModifier(key.key());
  }

  /// Where it stands: the screen that bears it, and the part of that which it must not cover.
  struct Stand {
    QWidget* Bearer = nullptr;
    QRect Beside;
  };

  [[nodiscard]] Stand StandOf(const Notice& notice) const {
    if (notice.About) {
      QWidget* screen = ScreenOf(notice.About);
      if (screen->isVisible()) {
        const bool inSight = notice.About != screen && notice.About->isVisible();
        const QRect rect = notice.About->rect();
        return {screen,
                inSight ? QRect(notice.About->mapTo(screen, rect.topLeft()), rect.size()) : screen->rect()};
      }
    }
    if (m_strip && m_strip->isVisible()) return {m_strip, m_strip->rect()};
    return {};
  }

  void Look() {
    if (m_label) {
      if (IsUnderADialog(*m_label)) {
        TakeDown();
      } else if (IsOver()) {
        Drop();
      }
      return;
    }
    const Stand stand = StandOf(*m_notice);
    if (stand.Bearer == nullptr) {
      Drop();
    } else if (!IsUnderADialog(*stand.Bearer)) {
      PutUp(stand);
    }
  }

  void PutUp(const Stand& stand) {
    m_label = new NoticeLabel(stand.Bearer);
    m_label->Tell(m_notice->Text, stand.Beside);
    m_since = Clock::Now();
    m_isSettled = false;
    // The key that is being handled may come by once more, on its way up to the window.
    QTimer::singleShot(0, m_label, [this] { m_isSettled = true; });
  }

  void TakeDown() {
    if (!m_label) return;
    m_label->hide();
    m_label->deleteLater();
    m_label.clear();
  }

  [[nodiscard]] bool IsOver() {
    const QDateTime now = Clock::Now();
    // A clock that was set back starts the time anew.
    if (now < m_since) m_since = now;
    return m_notice->Life == NoticeLife::Seconds && m_since.msecsTo(now) >= Lifetime;
  }

  std::optional<Notice> m_notice;
  QPointer<NoticeLabel> m_label;
  QPointer<QWidget> m_strip;
  QMetaObject::Connection m_freed;
  QTimer m_looks{this};
  QDateTime m_since;
  bool m_isSettled = false;
};

}  // namespace

void Notify(QWidget* about, const QString& text, NoticeLife life) {
  NoticeBoard::Instance().Put(about, text, life);
}

void Notify(const QString& text, NoticeLife life) { NoticeBoard::Instance().Put(nullptr, text, life); }

void DropNotice() { NoticeBoard::Instance().Drop(); }

QString NoticeInView() { return NoticeBoard::Instance().InView(); }

void SetNoticeStrip(QWidget* strip) { NoticeBoard::Instance().SetStrip(strip); }

}  // namespace velmora::ui
