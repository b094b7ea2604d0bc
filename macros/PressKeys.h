#pragma once

#include "macros/SendKeys.h"

#include <functional>

namespace brenix {

/// Presses keys where the author's own would go: in an open menu, else in the widget with the
/// focus. A key that the widget leaves to the menus runs the command with that shortcut, or opens
/// the menu of the bar with that letter. A key is lost where nothing has the focus. `goOn` is asked
/// after each key; when it says no the rest is not pressed.
void PressKeys(const QList<KeyStroke> &keys, const std::function<bool()> &goOn);

} // namespace brenix
