#include <QTimerEvent>

#include "tests/monkey/Actions.h"
#include "windows/CrLfText.h"

namespace calvoro::monkey {

// The clock strikes. From then on the buttons fit the output, until it changes.
void LetTimePass(World& world, Dice& dice) {
    (void)dice;
    world.Do(QStringLiteral("a second later"));
    auto& clock = world.Get<QTimer>("Clock");
    QTimerEvent strikes(clock.timerId());
    QCoreApplication::sendEvent(&clock, &strikes);

    const int length = CrLfLength(world.Get<QPlainTextEdit>("txbOutput"));
    const auto check = [&](const char* name, int least) {
        if (world.main.Button(QLatin1String(name)).isEnabled() == (length >= least)) return;
        world.brokenInvariant = "choices";
        world.fault =
            std::string(name) + " does not fit an output of " + std::to_string(length) + " characters";
    };
    check("cmdClearOutputWindow", 1);
    check("cmdCopyToClipboard", 11);
    check("cmdEnlarge", 141);
}

}  // namespace calvoro::monkey
