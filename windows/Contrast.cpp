#include "windows/Contrast.h"

#include <algorithm>
#include <cmath>

namespace calvoro {
namespace {

// Of a channel, [0, 1].
double Linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [darker, brighter] = std::minmax({Luminance(one), Luminance(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

}  // namespace calvoro
