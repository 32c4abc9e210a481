// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace velmora::ui {

/// How long a notice stands: until the next key or some seconds, or until the next key alone.
enum class NoticeLife { Seconds, UntilKey };

/// Tells the user in one plain sentence what was refused or failed, and why: a line beside the control it is
/// about, inside that control's screen. It takes no focus and no key, lets clicks through, is told to
/// assistive technology, and goes at the next key or after some seconds by the program's clock. There is one
/// at a time: a newer one takes its place. One whose window stands under a modal dialog waits until that is
/// gone. It goes with its control, when that is hidden or freed; for one that is out of sight from the start
/// it stands at the foot of the screen, and in the strip when there is no such screen in view.
void Notify(QWidget* about, const QString& text, NoticeLife life = NoticeLife::Seconds);

/// The same about no control: it stands in the strip.
void Notify(const QString& text, NoticeLife life = NoticeLife::Seconds);

/// Takes back the notice that stands or waits.
void DropNotice();

/// The text of the notice in view; empty when there is none.
[[nodiscard]] QString NoticeInView();

/// The widget of the frame in which notices about no control stand, at its foot; null for none: then such a
/// notice is not shown, and one that waits is dropped.
void SetNoticeStrip(QWidget* strip);

}  // namespace velmora::ui
