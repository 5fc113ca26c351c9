#pragma once

#include <QColor>

namespace calvoro {

/// Least contrast of text that everybody can read (WCAG 2.1, success criterion 1.4.3).
inline constexpr double kLeastContrast = 4.5;

/// How far two colours are apart in brightness, whichever is the brighter one.
/// returns  1 to 21
/// source   WCAG 2.1, "contrast ratio" and "relative luminance"
double Contrast(const QColor& one, const QColor& other);

}  // namespace calvoro
