#include "cli/TodayCommand.h"

#include <cstdint>

#include "calendar/Today.h"
#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/FinishOutput.h"
#include "cli/OutputStream.h"
#include "datetext/AnyNotation.h"
#include "datetext/TextOptions.h"
#include "datetext/TodayText.h"
#include "platform/Streams.h"
#include "platform/SystemClock.h"
#include "text/DateNames.h"
#include "text/NamedTexts.h"

namespace calvoro {
namespace {

void AppendLabels(std::int32_t todayJdn, CalendarNumber calendar, LanguageNumber language,
                  OutputStream& output) {
    const TextOptions options;
    LabelWords words{ShownText(TextId::TodayIs, language), ShownWeekdayNames(language),
                     language == LanguageGerman};
    output.Append(TodayLabel(todayJdn, calendar, options, words));
    output.Append('\n');
    words.phrase = ShownText(TextId::AWeekFromTodayIs, language);
    output.Append(TodayLabel(todayJdn + 7, calendar, options, words));
    output.Append('\n');
}

}  // namespace

int RunToday(const TodayArguments& arguments) {
    OutputStream output(kStandardOutput);
    const std::int32_t todayJdn = TodayJdn(arguments.today ? *arguments.today : SystemClock().Today());
    if (arguments.all) {
        for (const Notation& notation : Notations()) {
            AppendLabels(todayJdn, notation.number, arguments.language, output);
        }
    } else {
        AppendLabels(todayJdn, arguments.calendar, arguments.language, output);
    }
    Diagnostics diagnostics(kStandardError);
    return FinishOutput(output, kExitAllGood, diagnostics);
}

}  // namespace calvoro
