#pragma once

// Keeps from a screen reader what it would otherwise speak although nobody needs to hear it now.

#include <QAccessible>

namespace calvoro {

/// While it lives, assistive tools are told of no change; what has changed is there when they ask for it.
class AccessibleSilence {
public:
    AccessibleSilence() : usual_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
    ~AccessibleSilence() { QAccessible::installUpdateHandler(usual_); }
    AccessibleSilence(const AccessibleSilence&) = delete;
    AccessibleSilence& operator=(const AccessibleSilence&) = delete;

private:
    QAccessible::UpdateHandler usual_;
};

}  // namespace calvoro
