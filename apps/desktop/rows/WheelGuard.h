#pragma once

class QWidget;

namespace Desktop
{

/// Lets the wheel pass a control that has not got the keyboard, so that scrolling a long panel changes no
/// value on the way.
void GuardWheel(QWidget& control);

} // namespace Desktop
