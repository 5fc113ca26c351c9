#include "tests/monkey/Invariants.h"

#include "windows/CrLfText.h"
#include "windows/QtText.h"
#include "windows/frmLargeDisplay.h"

namespace calvoro::monkey {

Before::Before(const World& world) : options(ComputeOptionsSeen(world)) {
    const Settings seen = SettingsSeen(world);
    boxes = {seen.firstDate, seen.dateDiff, seen.secondDate};
    output = seen.output;
    if (const auto* large = world.Open<frmLargeDisplay>()) {
        enlarged = CrLfText(*large->findChild<QPlainTextEdit*>());
    }
    focus = QApplication::focusWidget();
}

std::string Broken(const World& world, const Before& before, Memory& memory, Dice& dice) {
    if (!world.brokenInvariant.empty()) return world.brokenInvariant + ": " + world.fault;
    std::string found;
    const auto look = [&found](const char* name, const std::string& fault) {
        if (found.empty() && !fault.empty()) found = std::string(name) + ": " + fault;
    };
    look("messages", Told(world));
    look("choices", Choices(world));
    look("captions", Captions(world));
    look("today", TodayLines(world));
    look("readings", Readings(world));
    look("settings", SettingsInMemory(world));
    look("texts", WrittenTexts(world, before));
    look("focus", Focus(world, before));
    look("month", Month(world, memory));
    look("windows", OtherWindows(world, before));
    look("list", ListRowsShown(world, dice));
    return found;
}

}  // namespace calvoro::monkey
