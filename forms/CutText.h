// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QString;
class QWidget;

namespace velmora::ui {

/// Answers the question for a tool tip (QEvent::ToolTip) with the whole of a text that the widget shows cut
/// short, as the plain text that it is. False for a widget that has a tool tip of its own.
[[nodiscard]] bool TellCutText(QEvent& event, QWidget& widget, const QString& whole);

}  // namespace velmora::ui
