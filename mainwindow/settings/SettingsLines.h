#pragma once

// The lines of the settings file, taken one after the other off the front of its text.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace calvoro {

class SettingsLines {
public:
    enum class LineEnds {
        CrLf,  // a lone LF is a part of its line
        Lf,    // a CR before it belongs to the line end
    };

    /// text  must outlive this object and what it returns
    SettingsLines(std::string_view text, LineEnds lineEnds);

    /// A line of exactly Count numbers with commas between them.
    template <std::size_t Count>
    std::optional<std::array<std::int32_t, Count>> TakeNumbers() {
        const std::optional<std::string_view> line = TakeLine();
        if (!line) return {};
        std::array<std::int32_t, Count> numbers{};
        std::string_view fields = *line;
        for (std::size_t i = 0; i < Count; ++i) {
            const bool last = i + 1 == Count;
            const std::size_t end = last ? fields.size() : fields.find(',');
            if (end == std::string_view::npos) return {};
            const std::optional<std::int32_t> number = WholeNumber(fields.substr(0, end));
            if (!number) return {};
            numbers[i] = *number;
            if (!last) fields.remove_prefix(end + 1);
        }
        return numbers;
    }

    /// Whether a check box is set; nothing when its line is missing. Whatever else stands in the line, but
    /// a line end of the other kind, means that it is not set.
    std::optional<bool> TakeCheckBox();

    /// A text up to the last quote of its line, or of the first of its lines that has one; nothing when it
    /// is not quoted or anything but blanks stands behind it.
    std::optional<std::string_view> TakeQuoted();

    struct OutputAndUnit {
        std::string_view output;
        std::int32_t unit;
    };

    /// The last two fields, found from the end of the text, since the output may hold anything: the last
    /// quote behind which a line end and a line with a number follow. What stands behind them is ignored.
    std::optional<OutputAndUnit> TakeOutputAndUnit() const;

private:
    static std::optional<std::int32_t> WholeNumber(std::string_view field);

    std::optional<std::string_view> TakeLine();
    std::string_view WithoutCarriageReturn(std::string_view line) const;
    std::optional<std::int32_t> UnitBehind(std::string_view text) const;

    std::string_view rest_;
    std::string_view lineEnd_;
};

}  // namespace calvoro
