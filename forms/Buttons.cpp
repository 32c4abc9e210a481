// SPDX-License-Identifier: MIT
#include "forms/Buttons.h"

#include "forms/CutText.h"
#include "forms/Keys.h"
#include "forms/ProgramStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTransform>

#include <algorithm>
#include <array>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

// The rim of a button that its text must not touch.
constexpr int ButtonRim = 3;

}  // namespace

QString Escaped(QString caption) { return caption.replace(u'&', u"&&"_s); }

SSCommand::SSCommand(QWidget* parent) : QPushButton(parent), Control(this) {
  setAutoDefault(false);
  connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT Click(); });
}

void SSCommand::SetCaption(const QString& caption, Ampersand ampersand) {
  m_caption = caption;
  setText(ampersand == Ampersand::Plain ? Escaped(caption) : caption);
}

void SSCommand::SetArrow(Qt::ArrowType arrow) {
  m_arrow = arrow;
  update();
}

int SSCommand::TextWidth() const { return fontMetrics().size(Qt::TextShowMnemonic, text()).width(); }

bool SSCommand::event(QEvent* event) {
  const auto isCut = [this] { return TextWidth() > width() - 2 * ButtonRim; };
  if (event->type() == QEvent::ToolTip && isCut() && TellCutText(*event, *this, m_caption)) return true;
  return QPushButton::event(event);
}

void SSCommand::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event)) {
    QPushButton::keyPressEvent(event);
    return;
  }
  event->accept();
  if (!event->isAutoRepeat()) click();
}

void SSCommand::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  // A button that hands the focus on counts as having it while the other one does.
  if (focusProxy() != nullptr) option.state &= ~QStyle::State_HasFocus;
  const int room = width() - 2 * ButtonRim;
  if (option.icon.isNull() && TextWidth() > room)
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
  painter.drawControl(QStyle::CE_PushButton, option);
  if (m_arrow != Qt::NoArrow) DrawArrow(painter, option);
}

void SSCommand::DrawArrow(QStylePainter& painter, const QStyleOptionButton& button) const {
  const double size = std::min(0.5 * height(), 0.4 * width());
  QTransform place;
  place.translate(0.5 * width(), 0.5 * height());
  constexpr std::array<double, 5> turns{0, 0, 180, 270, 90};
  place.rotate(turns[static_cast<std::size_t>(m_arrow)]);
  place.scale(size, size);
  // A flat triangle that points up, round the middle of the button.
  const QPolygonF arrow = place.map(QPolygonF({{-0.5, 0.25}, {0.0, -0.25}, {0.5, 0.25}}));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(
      button.palette.brush(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.drawPolygon(arrow);
}

SSRibbon::SSRibbon(QWidget* parent) : SSCommand(parent) {
  setCheckable(true);
  connect(this, &QAbstractButton::toggled, this, [this](bool pressed) {
    if (pressed) ReleaseMates();
  });
}

void SSRibbon::SetValue(bool pressed) { setChecked(pressed); }

void SSRibbon::Group(const QList<SSRibbon*>& mates) {
  for (SSRibbon* ribbon : mates) {
    ribbon->m_mates.clear();
    for (SSRibbon* mate : mates) {
      if (mate != ribbon) ribbon->m_mates.append(mate);
    }
  }
}

void SSRibbon::paintEvent(QPaintEvent* event) {
  SSCommand::paintEvent(event);
  if (!isChecked() || BackColor() != Role::Default) return;
  // The style only darkens a pressed button a little; a bar tells the two states apart in both looks.
  constexpr int barHeight = 3;
  constexpr int barRim = 4;
  QPainter painter(this);
  painter.fillRect(barRim, height() - barHeight - 1, width() - 2 * barRim, barHeight - 1,
                   palette().color(QPalette::Highlight));
}

void SSRibbon::ReleaseMates() {
  for (const QPointer<SSRibbon>& mate : std::as_const(m_mates)) {
    if (mate) mate->setChecked(false);
  }
}

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent), Control(this) {
  connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT Click(); });
}

void CheckBox::SetCaption(const QString& caption) {
  m_caption = caption;
  setText(Escaped(caption));
}

void CheckBox::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event)) {
    QCheckBox::keyPressEvent(event);
    return;
  }
  event->accept();
  Q_EMIT EnterPressed();
}

void CheckBox::paintEvent(QPaintEvent* event) {
  if (!text().isEmpty()) {
    QCheckBox::paintEvent(event);
    return;
  }
  // Without a caption the tick box fills its place, which may be smaller than the style's own, and the focus,
  // which the style marks round the caption, is marked round the box.
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const int side = std::min(width(), height());
  option.rect = QRect((width() - side) / 2, (height() - side) / 2, side, side);
  painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
  if (hasFocus()) DrawFocusFrame(painter, option.rect, palette());
}

bool CheckBox::hitButton(const QPoint& position) const {
  return text().isEmpty() ? rect().contains(position) : QCheckBox::hitButton(position);
}

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent), Control(this) {
  connect(this, &QAbstractButton::toggled, this, [this](bool chosen) {
    if (chosen && parentWidget() != nullptr) TakeTabStop();
  });
  connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT Click(); });
}

void OptionButton::TakeTabStop() {
  // Qt hands it on only once one of them has had the focus.
  for (auto* mate : parentWidget()->findChildren<OptionButton*>(Qt::FindDirectChildrenOnly))
    mate->setFocusPolicy(mate == this ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionButton::SetCaption(const QString& caption) {
  m_caption = caption;
  setText(Escaped(caption));
}

}  // namespace velmora::ui
