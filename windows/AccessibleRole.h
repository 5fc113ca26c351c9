#pragma once

#include <QAccessible>
#include <QWidget>

namespace calvoro {

/// Tells assistive tools what a widget is that the toolkit has no role for: a group of options, a line
/// between two parts, a window of the program.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace calvoro
