// The module calvoro._engine: whole columns in and out of NumPy arrays, without the interpreter lock while
// the engine works. What users see is in calvoro/__init__.py.

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "cli/JsonLines.h"
#include "compute/CountDays.h"
#include "compute/FindDate.h"
#include "datetext/MonthText.h"
#include "datetext/Tags.h"
#include "platform/SystemClock.h"
#include "python/ColumnReader.h"
#include "python/TextColumn.h"
#include "quicktext/QuickWriter.h"
#include "text/DateNames.h"

namespace py = pybind11;

namespace calvoro {
namespace {

using Days = py::array_t<std::int32_t, py::array::c_style | py::array::forcecast>;
using Flags = py::array_t<bool, py::array::c_style | py::array::forcecast>;

/// The place of the first refused row; none when all are good.
using Refused = std::optional<std::size_t>;

CalendarNumber NotationNamed(const std::string& tag) {
    for (const CalendarNumber notation : kOfferedNotations) {
        if (TagText(notation) == tag) return notation;
    }
    throw std::invalid_argument("no notation '" + tag + "'");
}

std::size_t CountOf(const py::array& column) {
    return static_cast<std::size_t>(column.size());
}

/// Does some work without the interpreter lock.
template <typename Work>
auto Unlocked(const Work& work) {
    const py::gil_scoped_release unlocked;
    return work();
}

/// Runs a row function over a column without the interpreter lock.
/// row      row(i) returns whether the row is good
/// missing  set where a row is not; rows that are missing already are left out
template <typename Row>
Refused ForEachRow(std::size_t count, bool* missing, const Row& row) {
    const py::gil_scoped_release unlocked;
    Refused refused;
    for (std::size_t i = 0; i < count; ++i) {
        if (missing[i] || row(i)) continue;
        missing[i] = true;
        if (!refused) refused = i;
    }
    return refused;
}

Flags NoneMissing(std::size_t count) {
    Flags missing(static_cast<py::ssize_t>(count));
    std::fill_n(missing.mutable_data(), count, false);
    return missing;
}

/// Reader and writer of a notation under one set of options.
class Form {
public:
    Form(const std::string& notation, const std::string& dateFormat, const std::string& dateSeparator,
         const std::string& thousandsSeparator, const std::string& digitGrouping, bool hyphen, bool lenient)
        : options_(Options(dateFormat, dateSeparator, thousandsSeparator, digitGrouping, hyphen)),
          reader_(NotationNamed(notation), options_, lenient),
          writer_(NotationNamed(notation), options_) {}

    /// Reads an array of fixed-width characters (dtype U, C order, native bytes).
    py::tuple ReadColumn(const py::array& column) const {
        if (column.dtype().kind() != 'U') throw std::invalid_argument("not an array of characters");
        const std::size_t count = CountOf(column);
        const std::size_t width = static_cast<std::size_t>(column.itemsize()) / sizeof(char32_t);
        const auto* characters = static_cast<const char32_t*>(column.data());
        Days days(column.size());
        Flags missing = NoneMissing(count);
        std::int32_t* to = days.mutable_data();
        std::string buffer;
        const Refused refused = ForEachRow(count, missing.mutable_data(), [&](std::size_t i) {
            return reader_.Read(NarrowText(characters + i * width, width, buffer), to[i]);
        });
        return py::make_tuple(days, missing, refused);
    }

    /// Reads a list of texts; None is missing.
    py::tuple ReadList(const py::list& texts) const {
        const std::size_t count = texts.size();
        std::vector<std::string_view> views(count);
        Days days(static_cast<py::ssize_t>(count));
        Flags missing = NoneMissing(count);
        bool* gaps = missing.mutable_data();
        for (std::size_t i = 0; i < count; ++i) {
            const py::handle text = PyList_GET_ITEM(texts.ptr(), static_cast<py::ssize_t>(i));
            if (text.is_none()) {
                gaps[i] = true;
                continue;
            }
            py::ssize_t size = 0;
            const char* bytes = PyUnicode_AsUTF8AndSize(text.ptr(), &size);  // lives as long as the text
            if (bytes == nullptr) throw py::error_already_set();
            views[i] = {bytes, static_cast<std::size_t>(size)};
        }
        std::int32_t* to = days.mutable_data();
        const Refused refused =
            ForEachRow(count, gaps, [&](std::size_t i) { return reader_.Read(views[i], to[i]); });
        return py::make_tuple(days, missing, refused);
    }

    std::string Reason(const std::string& text) const { return reader_.Reason(text); }

    /// Writes an array of characters; a missing day is an empty text.
    /// missing  True where there is no day; set where a day has no date in the notation
    py::tuple WriteColumn(const Days& days, const Flags& missing) const {
        Flags gaps(missing.size());
        const GrowingColumn column = Written(days, missing, gaps);
        const std::size_t width = Unlocked([&] { return column.Width(); });
        py::array result(py::dtype("U" + std::to_string(width)), std::vector<py::ssize_t>{days.size()});
        auto* characters = static_cast<char32_t*>(result.mutable_data());
        Unlocked([&] { column.CopyTo(characters, width); });
        return py::make_tuple(result, gaps, FirstNew(missing, gaps));
    }

    /// Writes a list of texts; a missing day is None.
    py::tuple WriteList(const Days& days, const Flags& missing) const {
        Flags gaps(missing.size());
        const GrowingColumn column = Written(days, missing, gaps);
        py::list texts(column.Count());
        for (std::size_t i = 0; i < column.Count(); ++i) {
            const std::string_view text = column.Text(i);
            py::object item = py::none();
            if (!gaps.data()[i]) item = py::str(text.data(), text.size());
            PyList_SET_ITEM(texts.ptr(), static_cast<py::ssize_t>(i), item.release().ptr());
        }
        return py::make_tuple(texts, gaps, FirstNew(missing, gaps));
    }

private:
    static char OneCharacter(const std::string& text, const char* what) {
        if (text.size() > 1) throw std::invalid_argument(std::string("no ") + what + " '" + text + "'");
        return text.empty() ? kNoSeparator : text.front();
    }

    static TextOptions Options(const std::string& dateFormat, const std::string& dateSeparator,
                               const std::string& thousandsSeparator, const std::string& digitGrouping,
                               bool hyphen) {
        TextOptions options;
        if (dateFormat == "YMD") {
            options.dateFormat = DateFormat::YMD;
        } else if (dateFormat == "DMY") {
            options.dateFormat = DateFormat::DMY;
        } else if (dateFormat == "MDY") {
            options.dateFormat = DateFormat::MDY;
        } else {
            throw std::invalid_argument("no date format '" + dateFormat + "'");
        }
        options.dateSeparator = OneCharacter(dateSeparator, "date separator");
        if (options.dateSeparator != '-' && options.dateSeparator != '/' && options.dateSeparator != '.') {
            throw std::invalid_argument("no date separator '" + dateSeparator + "'");
        }
        options.thousandsSeparator = OneCharacter(thousandsSeparator, "thousands separator");
        if (options.thousandsSeparator != kNoSeparator && options.thousandsSeparator != ',' &&
            options.thousandsSeparator != '.') {
            throw std::invalid_argument("no thousands separator '" + thousandsSeparator + "'");
        }
        options.digitGrouping = digitGrouping;
        options.hyphen = hyphen;
        return options;
    }

    GrowingColumn Written(const Days& days, const Flags& missing, Flags& gaps) const {
        const std::size_t count = CountOf(days);
        if (CountOf(missing) != count) throw std::invalid_argument("columns of different lengths");
        const std::int32_t* from = days.data();
        std::copy_n(missing.data(), count, gaps.mutable_data());
        bool* flags = gaps.mutable_data();
        return Unlocked([&] {
            GrowingColumn column(count);
            for (std::size_t i = 0; i < count; ++i) {
                char* end = column.Reserve(writer_.Room());
                if (!flags[i]) {
                    flags[i] = !writer_.CanWrite(from[i]);
                    if (!flags[i]) end = writer_.Write(from[i], end);
                }
                column.Commit(end);
            }
            return column;
        });
    }

    static Refused FirstNew(const Flags& before, const Flags& after) {
        const std::size_t count = CountOf(after);
        const auto place = std::mismatch(after.data(), after.data() + count, before.data());
        if (place.first == after.data() + count) return std::nullopt;
        return static_cast<std::size_t>(place.first - after.data());
    }

    TextOptions options_;
    ColumnReader reader_;
    QuickWriter writer_;
};

/// The numbers that a date is made of; notations with fewer leave the last ones out.
struct Numbers {
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::int32_t third = 0;
};

/// The numbers of each day's date: as many columns as the notation has numbers.
template <std::size_t columns, typename Split>
py::tuple SplitDays(const Days& days, const Split& split) {
    const std::size_t count = CountOf(days);
    std::array<Days, columns> fields;
    for (Days& field : fields) field = Days(days.size());
    const std::int32_t* from = days.data();
    std::int32_t* first = fields.front().mutable_data();
    std::int32_t* second = fields[columns > 1 ? 1 : 0].mutable_data();
    std::int32_t* third = fields.back().mutable_data();
    Unlocked([&] {
        for (std::size_t i = 0; i < count; ++i) {
            const Numbers numbers = split(from[i]);
            first[i] = numbers.first;
            if constexpr (columns > 1) second[i] = numbers.second;
            if constexpr (columns > 2) third[i] = numbers.third;
        }
    });
    py::tuple result(columns);
    for (std::size_t c = 0; c < columns; ++c) result[c] = fields[c];
    return result;
}

Numbers NumbersOf(const formula::YearMonthDay& date) {
    return {date.year, date.month, date.day};
}

Numbers SplitLeapWeek(std::int32_t jdn, bool months) {
    LeapWeekDate date{.jdn = jdn};
    JdnToLpm(date);
    return months ? Numbers{date.year, date.month, date.day} : Numbers{date.year, date.week, date.weekday};
}

py::tuple Fields(const Days& days, const std::string& notation) {
    switch (NotationNamed(notation)) {
        case CalendarNumber::ISO:
            return SplitDays<3>(days, [](std::int32_t jdn) {
                IsoWeekDate date{.jdn = jdn};
                JdnToIsoWeekDate(date);
                return Numbers{date.year, date.week, date.day};
            });
        case CalendarNumber::JC:
            return SplitDays<3>(days, [](std::int32_t jdn) { return NumbersOf(formula::JulianDate(jdn)); });
        case CalendarNumber::ORD:
            return SplitDays<2>(days, [](std::int32_t jdn) {
                std::int32_t year = 0;
                std::int16_t day = 0;
                JdnToOrdinal(jdn, year, day);
                return Numbers{year, day, 0};
            });
        case CalendarNumber::LPM:
            return SplitDays<3>(days, [](std::int32_t jdn) { return SplitLeapWeek(jdn, true); });
        case CalendarNumber::LPW:
            return SplitDays<3>(days, [](std::int32_t jdn) { return SplitLeapWeek(jdn, false); });
        case CalendarNumber::JDN:
            return SplitDays<1>(days, [](std::int32_t jdn) { return Numbers{jdn, 0, 0}; });
        case CalendarNumber::CE:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: break;
    }
    return SplitDays<3>(days, [](std::int32_t jdn) { return NumbersOf(formula::CommonEraDate(jdn)); });
}

/// A column from two columns, row by row.
template <typename Row>
py::tuple Combine(const Days& first, const Days& second, const Flags& missing, const Row& row) {
    const std::size_t count = CountOf(first);
    if (CountOf(second) != count || CountOf(missing) != count) {
        throw std::invalid_argument("columns of different lengths");
    }
    Days result(first.size());
    Flags gaps(missing.size());
    std::copy_n(missing.data(), count, gaps.mutable_data());
    const std::int32_t* a = first.data();
    const std::int32_t* b = second.data();
    std::int32_t* to = result.mutable_data();
    const Refused refused =
        ForEachRow(count, gaps.mutable_data(), [&](std::size_t i) { return row(a[i], b[i], to[i]); });
    return py::make_tuple(result, gaps, refused);
}

ComputeState Counting(bool includeFirst, bool countWeekends) {
    ComputeState state;
    state.options.includeFirstDate = includeFirst;
    state.options.countWeekendDays = countWeekends;
    return state;
}

py::tuple Between(const Days& first, const Days& second, const Flags& missing, bool includeFirst,
                  bool countWeekends) {
    ComputeState state = Counting(includeFirst, countWeekends);
    return Combine(first, second, missing, [&](std::int32_t from, std::int32_t to, std::int32_t& days) {
        state.FirstDateRecord.jdn = from;
        state.SecondDateRecord.jdn = to;
        const bool isCounted = CountDays(state);
        days = state.DateDifference;
        return isCounted;
    });
}

py::tuple Add(const Days& dates, const Days& amounts, const Flags& missing, const std::string& notation,
              bool months, bool includeFirst, bool countWeekends) {
    ComputeState state = Counting(includeFirst, countWeekends);
    state.options.firstCalendar = NotationNamed(notation);
    return Combine(dates, amounts, missing, [&](std::int32_t date, std::int32_t amount, std::int32_t& found) {
        state.FirstDateRecord =
            months ? RecordWithMonth(date, state.options.firstCalendar) : DateRecord{.jdn = date};
        state.DateDifference = amount;
        const bool isFound = months ? AddMonths(state) : AddDays(state);
        found = state.SecondDateRecord.jdn;
        return isFound;
    });
}

std::string Month(std::int32_t year, std::int32_t month, bool julian, bool mondayFirst, bool german) {
    const LanguageNumber language = german ? LanguageGerman : LanguageEnglish;
    return DrawMonth(year, month, julian ? CalendarCode::J : CalendarCode::G,
                     mondayFirst ? WeekStart::Monday : WeekStart::Sunday, ShownWeekdayNames(language))
        .text;
}

std::string Compute(const std::string& request) {
    const py::gil_scoped_release unlocked;
    std::string response;
    AnswerJsonLine(request, 1, SystemClock(), response);
    return response;
}

}  // namespace
}  // namespace calvoro

PYBIND11_MODULE(_engine, module) {
    using namespace calvoro;
    module.doc() = "The engine of calvoro, for whole columns. Use the functions of calvoro itself.";
    py::register_exception<ArithmeticOverflow>(module, "ArithmeticOverflow", PyExc_OverflowError);

    py::class_<Form>(module, "Form", "Reader and writer of a notation under one set of options.")
        .def(py::init<const std::string&, const std::string&, const std::string&, const std::string&,
                      const std::string&, bool, bool>())
        .def("read_column", &Form::ReadColumn, "Reads an array of characters: (days, missing, refused).")
        .def("read_list", &Form::ReadList, "Reads a list of texts and None: (days, missing, refused).")
        .def("reason", &Form::Reason, "Why a text is refused.")
        .def("write_column", &Form::WriteColumn, "Writes an array of characters: (texts, missing, refused).")
        .def("write_list", &Form::WriteList, "Writes a list of texts and None: (texts, missing, refused).");
    module.def("fields", &Fields, "The numbers of each day's date, a column each.");
    module.def("between", &Between, "Days between two columns: (days, missing, refused).");
    module.def("add", &Add, "Days or months added to a column: (days, missing, refused).");
    module.def("month", &Month, "The grid of a month, with CR LF line ends.");
    module.def("compute", &Compute, "Answers a request in JSON.");
}
