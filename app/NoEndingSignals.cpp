#include "app/EndingSignals.h"

namespace calvoro {

// A program that shows windows is sent no signals there; the end of a session is told by the toolkit.
// NOLINTNEXTLINE(performance-unnecessary-value-param): declared for where it is kept
EndingSignals::EndingSignals(std::function<void()> /*end*/, QObject* parent) : QObject(parent) {}

}  // namespace calvoro
