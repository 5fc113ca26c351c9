#include "tests/monkey/Invariants.h"
#include "windows/QtText.h"

namespace calvoro::monkey {

// The focus is on something that is shown and can be used, in the window that is active; when the event moved
// it, it can be seen.
std::string Focus(const World& world, const Before& before) {
    if (QApplication::activePopupWidget() != nullptr) return {};
    const QWidget* const active = QApplication::activeWindow();
    if (active == nullptr) return "no window is active";
    const QWidget* const focused = QApplication::focusWidget();
    if (focused == nullptr) return "nothing has the focus in " + FromQt(NameOf(*active));
    const std::string name = FromQt(NameOf(*focused));
    if (focused->window() != active) return name + " has the focus, but is not in the active window";
    if (!focused->isVisible() || !focused->isEnabled()) return name + " has the focus, but cannot be used";
    const bool moved = focused != before.focus || world.startedAnew;
    if (moved && focused->visibleRegion().isEmpty()) {
        const QRect place(focused->mapTo(active, QPoint()), focused->size());
        const auto number = [](int pixels) { return std::to_string(pixels); };
        return name + " got the focus out of sight, at " + number(place.x()) + " " + number(place.y()) +
               " in a window of " + number(active->width()) + " x " + number(active->height());
    }
    return {};
}

}  // namespace calvoro::monkey
