#pragma once

// The monkey: events one after the other, and a look at everything after each.

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "tests/monkey/Actions.h"
#include "tests/monkey/Invariants.h"

namespace calvoro::monkey {

class Monkey : public QObject {
    Q_OBJECT

public:
    explicit Monkey(std::uint64_t seed);

    /// Does one event of this seed. What it chooses depends on its number alone, and on what is open.
    /// lie  an invariant to be falsified behind the event, or empty
    /// returns  what is wrong then, or empty
    std::string Do(std::uint64_t event, std::string_view lie = {});

    /// The seed, the event and its words, for the last thing that is told in a crash as well.
    std::string Where() const;

    const std::map<std::string, std::uint64_t>& Counts() const { return counts_; }

private:
    void OnTick();
    void KeepSmall();

    std::uint64_t seed_;
    std::uint64_t event_ = 0;
    World world_;
    Memory memory_;
    QTimer ticks_;  // while a window waits for an answer no event comes to its end
    int eventsInQuestion_ = 0;
    bool acting_ = false;
    std::map<std::string, std::uint64_t> counts_;
};

}  // namespace calvoro::monkey
