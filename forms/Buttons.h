// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QCheckBox>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

class QStyleOptionButton;
class QStylePainter;

namespace velmora::ui {

/// Whether an ampersand in a caption marks the letter of an access key, or is a plain character.
enum class Ampersand { Plain, AccessKey };

/// A caption as Qt wants it, so that its ampersands show as they are.
[[nodiscard]] QString Escaped(QString caption);

/// A push button. Never a screen's default: Enter presses it only when it has the focus itself. A caption too
/// long for it ends in an ellipsis and is told whole as the tool tip.
class SSCommand : public QPushButton, public Control {
  Q_OBJECT

 public:
  explicit SSCommand(QWidget* parent);
  [[nodiscard]] QString Caption() const { return m_caption; }
  void SetCaption(const QString& caption, Ampersand ampersand = Ampersand::Plain);
  /// Shows an arrow on the button; give it an accessible name then.
  void SetArrow(Qt::ArrowType arrow);

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  void Click();
  void GotFocus();
  void LostFocus();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int TextWidth() const;
  void DrawArrow(QStylePainter& painter, const QStyleOptionButton& button) const;
  QString m_caption;
  Qt::ArrowType m_arrow = Qt::NoArrow;
};

/// A button with two states, pressed and released.
class SSRibbon : public SSCommand {
  Q_OBJECT

 public:
  explicit SSRibbon(QWidget* parent);
  [[nodiscard]] bool Value() const { return isChecked(); }
  /// Presses or releases it without a Click; pressing releases the others of its group.
  void SetValue(bool pressed);
  /// Makes buttons one choice: pressing one releases the others. The user may release the pressed one.
  static void Group(const QList<SSRibbon*>& mates);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ReleaseMates();
  QList<QPointer<SSRibbon>> m_mates;
};

/// A box with a tick.
class CheckBox : public QCheckBox, public Control {
  Q_OBJECT

 public:
  explicit CheckBox(QWidget* parent);
  [[nodiscard]] int Value() const { return isChecked() ? 1 : 0; }
  /// 0 or 1, without a Click.
  void SetValue(int value) { setChecked(value != 0); }
  [[nodiscard]] QString Caption() const { return m_caption; }
  void SetCaption(const QString& caption);

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// The user changed the tick, by mouse or by the space bar.
  void Click();
  void GotFocus();
  void LostFocus();
  void EnterPressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] bool hitButton(const QPoint& position) const override;

 private:
  QString m_caption;
};

/// One of several choices, of which those with the same parent exclude each other.
class OptionButton : public QRadioButton, public Control {
  Q_OBJECT

 public:
  explicit OptionButton(QWidget* parent);
  [[nodiscard]] bool Value() const { return isChecked(); }
  /// Chooses it without a Click.
  void SetValue(bool chosen) { setChecked(chosen); }
  [[nodiscard]] QString Caption() const { return m_caption; }
  void SetCaption(const QString& caption);

 Q_SIGNALS:
  /// The user chose it.
  void Click();

 private:
  /// Of the choices the Tab key stops at the one that is chosen.
  void TakeTabStop();
  QString m_caption;
};

}  // namespace velmora::ui
