#include "tests/support/ReferenceDates.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace calvoro::testing {

namespace {

[[noreturn]] void Refuse(std::string_view text) {
    throw std::runtime_error("no reference date: '" + std::string(text) + "'");
}

std::int32_t Number(std::string_view digits) {
    std::int32_t number = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (fault != std::errc() || end != digits.data() + digits.size()) Refuse(digits);
    return number;
}

/// Cuts the text before a separator off the front of a text; a leading minus sign is no separator.
std::string_view CutOff(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator, text.starts_with('-') ? 1 : 0);
    if (end == std::string_view::npos) Refuse(text);
    const std::string_view front = text.substr(0, end);
    text.remove_prefix(end + 1);
    return front;
}

ReferenceDate::YearAndTwo ThreeNumbers(std::string_view text) {
    const std::int32_t year = Number(CutOff(text, '-'));
    if (text.starts_with('W')) text.remove_prefix(1);
    const std::int32_t second = Number(CutOff(text, '-'));
    return {year, second, Number(text)};
}

ReferenceDate::YearAndDay TwoNumbers(std::string_view text) {
    const std::int32_t year = Number(CutOff(text, '-'));
    return {year, Number(text)};
}

template <typename Value, typename Reader>
void Fill(std::optional<Value>& field, std::string_view text, Reader read) {
    if (!text.empty()) field = read(text);
}

ReferenceDate ReadRow(std::string_view line) {
    ReferenceDate row;
    row.source = CutOff(line, ',');
    Fill(row.jdn, CutOff(line, ','), Number);
    Fill(row.commonEra, CutOff(line, ','), ThreeNumbers);
    Fill(row.julian, CutOff(line, ','), ThreeNumbers);
    Fill(row.iso, CutOff(line, ','), ThreeNumbers);
    Fill(row.ordinal, line, TwoNumbers);
    return row;
}

}  // namespace

std::vector<ReferenceDate> ReadReferenceDates(const std::string& path) {
    std::ifstream file(path);
    std::string line;
    if (!std::getline(file, line) || line != "source,jdn,ce,jc,iso,ordinal") Refuse(path);
    std::vector<ReferenceDate> rows;
    while (std::getline(file, line)) rows.push_back(ReadRow(line));
    return rows;
}

}  // namespace calvoro::testing
