// Reads a date of the Common Era, writes it in every notation, and reckons from it.

#include <iostream>

#include "ThreeBoxes.h"
#include "calendar/CheckedInt.h"
#include "calendar/MonthArithmetic.h"
#include "compute/ComputeClick.h"
#include "datetext/AnyNotation.h"

using namespace calvoro;

int main(int count, char** words) {
    const std::string text = count > 1 ? words[1] : "2021-03-04";
    const TextOptions options;

    DateRecord date;
    if (ReadDate(CalendarNumber::CE, text, options, date) != ParseStatus::Valid) {
        std::cerr << "not a date: " << text << '\n';
        return 1;
    }
    for (const Notation& notation : Notations()) {
        if (!CanWriteDate(notation.number, date.jdn)) continue;
        std::cout << notation.write(date.jdn, options) << ' ' << notation.tag << '\n';
    }

    DateRecord monthLater;
    AddMonths(date, 1, monthLater, false);
    std::cout << "a month later: " << WriteDate(CalendarNumber::CE, monthLater.jdn, options) << '\n';
    try {
        AddMonths(date, 2'000'000'000, monthLater, false);
    } catch (const ArithmeticOverflow& overflow) {
        std::cout << "two thousand million months later: " << overflow.what() << '\n';
    }

    ComputeState state;
    ThreeBoxes window(text, "10", "", ComputeOptions());
    cmdCompute_Click(window, state);
    std::cout << window.Answer();
}
