// monkey [--seed N] [--events N] [--from N] [--to N] [--only A-B,C,...] [--lie INVARIANT] [--lie-at N]
// [--memory]
//
// Plays with the windows and tells the first event after which an invariant does not hold, by number and in
// words. The same seed and numbers play the same again; --only leaves out all events but these, to find those
// that it takes. --memory records the memory in use as well and fails when it grows.

#include <unistd.h>
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmapCache>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>
#include <vector>

#include "tests/monkey/MemoryInUse.h"
#include "tests/monkey/Monkey.h"

namespace {

using namespace calvoro::monkey;

const Monkey* g_monkey = nullptr;

void TellWhere() {
    if (g_monkey == nullptr) return;
    std::printf("%s\nthe program did not survive it: crash\n", g_monkey->Where().c_str());
    std::fflush(stdout);
}

void OnSignal(int signal) {
    TellWhere();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

// Called by the sanitizers before they end a program.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace {

void TellWhereInEveryCrash() {
    std::signal(SIGABRT, OnSignal);  // which the sanitizers leave to the program
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(&TellWhere);
        return;
    }
    for (const int signal : {SIGSEGV, SIGFPE, SIGBUS, SIGILL}) std::signal(signal, OnSignal);
}

/// "1-5,9" to its numbers' ranges.
std::vector<std::pair<std::uint64_t, std::uint64_t>> Ranges(const QString& list) {
    std::vector<std::pair<std::uint64_t, std::uint64_t>> ranges;
    for (const QString& part : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const std::uint64_t first = part.section(QLatin1Char('-'), 0, 0).toULongLong();
        ranges.emplace_back(first, part.section(QLatin1Char('-'), -1).toULongLong());
    }
    return ranges;
}

void TellCounts(const Monkey& monkey, std::uint64_t seed, std::uint64_t events) {
    std::printf("seed %llu: %llu events, nothing found;", static_cast<unsigned long long>(seed),
                static_cast<unsigned long long>(events));
    for (const auto& [kind, count] : monkey.Counts()) {
        std::printf(" %s %llu,", kind.c_str(), static_cast<unsigned long long>(count));
    }
    std::printf("\n");
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    QCommandLineParser parser;
    parser.addHelpOption();
    const auto number = [&](const char* name, const char* otherwise) {
        parser.addOption(
            {QString::fromLatin1(name), QString(), QStringLiteral("N"), QLatin1String(otherwise)});
    };
    number("seed", "20261121");
    number("events", "1000");
    number("from", "1");
    number("to", "0");
    number("only", "");
    number("lie", "");
    number("lie-at", "20");
    number("sample", "5000");
    parser.addOption({QStringLiteral("memory"), QString()});
    parser.addOption({QStringLiteral("trace"), QString()});
    parser.process(application);
    const auto value = [&](const char* name) { return parser.value(QLatin1String(name)).toULongLong(); };

    const std::uint64_t seed = value("seed");
    const std::uint64_t first = value("from");
    const std::uint64_t last = value("to") != 0 ? value("to") : first + value("events") - 1;
    const auto ranges = Ranges(parser.value(QStringLiteral("only")));
    const std::string lie = parser.value(QStringLiteral("lie")).toStdString();
    const auto isWanted = [&](std::uint64_t event) {
        return ranges.empty() || std::any_of(ranges.begin(), ranges.end(), [event](const auto& range) {
                   return range.first <= event && event <= range.second;
               });
    };

    Monkey monkey(seed);
    g_monkey = &monkey;
    TellWhereInEveryCrash();
    const bool watchesMemory = parser.isSet(QStringLiteral("memory"));
    // The toolkit's cache of pictures is bounded, but it keeps the names of those that were thrown out (some
    // 125 bytes each with Qt 6.4.2): it grows with each new size or colour of a control.
    if (watchesMemory) QPixmapCache::setCacheLimit(0);
    MemoryInUse memory(watchesMemory ? value("sample") : 0);
    std::uint64_t done = 0;
    for (std::uint64_t event = first; event <= last; ++event) {
        if (!isWanted(event)) continue;
        const bool lies = event >= value("lie-at") && !lie.empty();
        if (lies && lie == "memory") memory.Waste();
        const std::string broken = monkey.Do(event, lies && lie != "memory" ? lie : std::string());
        ++done;
        if (parser.isSet(QStringLiteral("trace"))) {
            std::printf("%s\n", monkey.Where().c_str());
            std::fflush(stdout);
        }
        if (!broken.empty()) {
            std::printf("%s\n%s\n", monkey.Where().c_str(), broken.c_str());
            return EXIT_FAILURE;
        }
        memory.After(done);
    }
    TellCounts(monkey, seed, done);
    if (!watchesMemory) return EXIT_SUCCESS;
    return memory.Tell() ? EXIT_SUCCESS : EXIT_FAILURE;
}
