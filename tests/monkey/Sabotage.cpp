// Lies of every kind, each of which one invariant must find: a monkey that finds nothing must be able to.

#include <QComboBox>
#include <QRadioButton>
#include <cstdlib>

#include "tests/monkey/Invariants.h"
#include "tests/windows/WindowTesting.h"
#include "windows/QtText.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmList.h"

namespace calvoro::monkey {
namespace {

void LieAboutChoices(World& world) {
    world.main.Button(QStringLiteral("chkIncludeWeekends"))
        .setEnabled(!world.main.Button(QStringLiteral("chkIncludeWeekends")).isEnabled());
}

void LieAboutCaptions(World& world) {
    world.main.Button(QStringLiteral("cmdCompute")).setText(QStringLiteral("Calculer"));
}

void LieAboutToday(World& world) {
    world.Get<QLabel>("lblTodaysDate").setText(QStringLiteral("Today is Friday, 2026-11-21 CE"));
}

void LieAboutReadings(World& world) {
    world.Get<QLabel>("lblReading").setText(QStringLiteral("First date: 30 February"));
}

void LieAboutSettings(World& world) {
    world.readsBackWrong = true;
}

void LieAboutTexts(World& world) {
    world.Get<QLineEdit>("txbFirstDate").setText(QStringLiteral("2024-99-99"));
}

void LieAboutFocus(World& world) {
    (void)world;
    if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
}

void LieAboutMonth(World& world) {
    world.main.Button(QStringLiteral("cmdDisplayMonth")).click();
    Control<QPlainTextEdit>(*OpenedWindow<frmDisplayMonth>(), "txbMonth")
        .setPlainText(QStringLiteral("31 32 33"));
}

void LieInOtherWindows(World& world) {
    world.main.Button(QStringLiteral("cmdHelp")).click();
    Control<QPlainTextEdit>(*OpenedWindow<frmHelp>(), "txbMsg").setPlainText(QStringLiteral("no help"));
}

class LyingRows final : public ListRowMaker {
public:
    void Make(std::string_view date, ListRow& row) override {
        row = {};
        row.reading = date;
        row.result = "never";
    }
    bool HasWeekdays() const override { return false; }
    std::string ResultCaption() const override { return "Lies"; }
};

void LieInList(World& world) {
    QTest::keyClick(world.main.window.get(), Qt::Key_L, Qt::ControlModifier);
    auto* list = OpenedWindow<frmList>();
    list->Show({QStringLiteral("2024-02-29\n"), QString()}, ListSide::FirstDates);
    auto& table = Control<QTableView>(*list, "tblList");
    static_cast<ListModel*>(table.model())->SetMaker(std::make_shared<LyingRows>());
}

void Warn(World& world) {
    (void)world;
    qWarning("a timer of nobody");
}

void Crash(World& world) {
    (void)world;
    std::abort();
}

struct Lie {
    std::string_view invariant;
    void (*tell)(World& world);
};
constexpr std::array<Lie, 12> kLies = {{{"messages", &Warn},
                                        {"choices", &LieAboutChoices},
                                        {"captions", &LieAboutCaptions},
                                        {"today", &LieAboutToday},
                                        {"readings", &LieAboutReadings},
                                        {"settings", &LieAboutSettings},
                                        {"texts", &LieAboutTexts},
                                        {"focus", &LieAboutFocus},
                                        {"month", &LieAboutMonth},
                                        {"windows", &LieInOtherWindows},
                                        {"list", &LieInList},
                                        {"crash", &Crash}}};

}  // namespace

bool Sabotage(World& world, std::string_view invariant) {
    for (const Lie& lie : kLies) {
        if (lie.invariant != invariant) continue;
        lie.tell(world);
        return true;
    }
    return false;
}

}  // namespace calvoro::monkey
