// What a user may type, paste or drop: dates and numbers of the main window, and nonsense.

#include <array>

#include "datetext/AnyNotation.h"
#include "tests/monkey/Actions.h"
#include "tests/monkey/Seen.h"
#include "windows/QtText.h"

namespace calvoro::monkey {
namespace {

std::int32_t AnyDay(Dice& dice) {
    switch (dice.Below(10)) {
        case 0: return dice.Between(-2'100'000'000, 0) + dice.Below(2'100'000'000);
        case 1: return dice.Below(7'000'000) - 3'000'000;
        case 2: return dice.Between(-20, 20);
        case 3: return 2'147'483'600 + dice.Below(47);
        default: return 2'400'000 + dice.Below(100'000);
    }
}

QString DateIn(CalendarNumber calendar, const TextOptions& options, Dice& dice) {
    const std::int32_t day = AnyDay(dice);
    return CanWriteDate(calendar, day) ? ToQt(WriteDate(calendar, day, options))
                                       : QStringLiteral("2024-13-40");
}

QString Damaged(QString text, Dice& dice) {
    const int place = dice.Below(static_cast<int>(text.size()) + 1);
    switch (dice.Below(4)) {
        case 0: return text.insert(place, QChar(0x20 + dice.Below(0x5F)));
        case 1: return text.remove(place, 1);
        case 2: return QStringLiteral(" \t") + text + QStringLiteral(" \n");
        default: return text.insert(place, QChar(dice.Below(0x10000)));
    }
}

const QList<QString>& Oddities() {
    static const QList<QString> kOddities = {QString(),
                                             QStringLiteral(" "),
                                             QStringLiteral("\t"),
                                             QStringLiteral("\n"),
                                             QStringLiteral("\r\n\r\n"),
                                             QStringLiteral("x"),
                                             QStringLiteral("-"),
                                             QStringLiteral("--01-08"),
                                             QStringLiteral("0"),
                                             QStringLiteral("99999999999999999999"),
                                             QStringLiteral("-2147483648"),
                                             QStringLiteral("2147483647"),
                                             QStringLiteral("1,234,567"),
                                             QStringLiteral("1.234.567"),
                                             QStringLiteral("2024-02-29 CE"),
                                             QStringLiteral("44 BCE"),
                                             QStringLiteral("2024-W53-7"),
                                             QStringLiteral("0000-W53-1"),
                                             QStringLiteral("2024-02-29\n2024-03-01\n"),
                                             QStringLiteral("a\tb\r\n1\t2\r\n"),
                                             QStringLiteral("\"a\nb\",c\n"),
                                             QString(QChar(0)),
                                             QString(QChar(0xFEFF)),
                                             QString(QChar(0x2028)) + QChar(0x2029),
                                             QString(QChar(0xD800)),
                                             QStringLiteral("\u202E2024"),
                                             QStringLiteral("\u22125"),
                                             QStringLiteral("e\u0301\u0301\u0301"),
                                             QStringLiteral("\U0001F600\U0010FFFF"),
                                             QStringLiteral("\u0661\u0662"),
                                             QStringLiteral("<b>1</b>"),
                                             QStringLiteral("%1 %s %n"),
                                             QStringLiteral("\"\r\n0\r\n"),
                                             QStringLiteral("&File &&")};
    return kOddities;
}

}  // namespace

QString ReadableText(const World& world, Dice& dice) {
    const ComputeOptions options = ComputeOptionsSeen(world);
    const QWidget* const focused = QApplication::focusWidget();
    const QString name = focused == nullptr ? QString() : focused->objectName();
    if (name == QLatin1String("txbFirstDate")) return DateIn(options.firstCalendar, options.text, dice);
    if (name == QLatin1String("txbSecondDate")) return DateIn(options.secondCalendar, options.text, dice);
    if (name == QLatin1String("txbDateDiff")) return QString::number(dice.Between(-3000, 100'000));
    return QString::number(dice.Between(-6000, 12'000));
}

QString OddText(const World& world, Dice& dice) {
    switch (dice.Below(8)) {
        case 0:
        case 1: return dice.OneOf(Oddities());
        case 2: return Damaged(dice.OneOf(Oddities()), dice);
        case 3: return Damaged(ReadableText(world, dice), dice);
        case 4: return DateIn(dice.OneOf(kOfferedNotations), TextOptionsSeen(world), dice);
        case 5: {
            QStringList lines;
            for (int i = dice.Below(20); i >= 0; --i) {
                lines.push_back(DateIn(dice.OneOf(kOfferedNotations), TextOptionsSeen(world), dice));
            }
            return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
        }
        case 6:
            return dice.OneIn(20) ? QString(dice.Below(5000), QLatin1Char('7')) : ReadableText(world, dice);
        default: return ReadableText(world, dice);
    }
}

}  // namespace calvoro::monkey
