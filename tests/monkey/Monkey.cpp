#include "tests/monkey/Monkey.h"

#include <QScopedValueRollback>

#include "windows/CrLfText.h"
#include "windows/QtText.h"

namespace calvoro::monkey {
namespace {

World* g_world = nullptr;  // for the handler of warnings, which the toolkit calls without a word

// What the offscreen platform says of itself, of fonts that lack a script, and the test library of a click.
bool IsToolkitsOwn(const QString& message) {
    return message.contains(QLatin1String("This plugin does not support")) ||
           message.contains(QLatin1String("OpenType support missing for")) ||
           message.contains(QLatin1String("occurs outside target window"));
}

void OnMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg || IsToolkitsOwn(message)) return;
    if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(message));
    if (g_world != nullptr) g_world->told.push_back(FromQt(message));
}

const Kind& KindOf(Dice& dice) {
    int thrown = dice.Below(1000);
    for (const Kind& kind : kKinds) {
        thrown -= kind.share;
        if (thrown < 0) return kind;
    }
    return kKinds.front();
}

}  // namespace

Monkey::Monkey(std::uint64_t seed) : seed_(seed) {
    g_world = &world_;
    qInstallMessageHandler(OnMessage);
    world_.Start(Settings());
    world_.Settle();
    connect(&ticks_, &QTimer::timeout, this, &Monkey::OnTick);
    ticks_.start(1);
}

// A question waits for its answer.
void Monkey::OnTick() {
    QWidget* const question = QApplication::activeModalWidget();
    if (question == nullptr || QApplication::activeWindow() != question) return;
    Dice dice(seed_,
              event_ * 100 + static_cast<std::uint64_t>(++eventsInQuestion_) + (std::uint64_t{1} << 40));
    ++counts_["in a question"];
    ActInQuestion(world_, dice, *question, eventsInQuestion_ % 7);
}

std::string Monkey::Do(std::uint64_t event, std::string_view lie) {
    event_ = event;
    eventsInQuestion_ = 0;
    Dice dice(seed_, event);
    world_.Forget();
    const Before before(world_);
    const bool yes = dice.OneIn(3);
    world_.main.fake.boxes.answers = {yes};
    world_.main.fake.web.results = {dice.OneIn(4) ? 31 : 33};
    const Kind& kind = KindOf(dice);
    world_.doing = ToQt(kind.name);
    ++counts_[std::string(kind.name)];
    {
        const QScopedValueRollback<bool> acting(acting_, true);
        kind.act(world_, dice);
    }
    world_.Settle();
    if (!world_.main.fake.boxes.asked.empty() && yes) {
        world_.wasReset = true;
        world_.weekStart = Settings().monthWeekStart;
        world_.monthCalendar = Settings().monthCalendar;
        world_.startedWith.interfaceLanguage = Settings().interfaceLanguage;
    }
    if (!lie.empty()) Sabotage(world_, lie);
    std::string broken = Broken(world_, before, memory_, dice);
    KeepSmall();
    return broken;
}

// An output that only grows would be taken for memory that is lost.
void Monkey::KeepSmall() {
    constexpr int kLongest = 20'000;
    auto& output = world_.Get<QPlainTextEdit>("txbOutput");
    if (CrLfLength(output) > kLongest) output.clear();
    for (const char* name : {"txbFirstDate", "txbDateDiff", "txbSecondDate"}) {
        auto& box = world_.Get<QLineEdit>(name);
        if (box.text().size() > 2 * 5000) box.clear();
    }
}

std::string Monkey::Where() const {
    return "seed " + std::to_string(seed_) + ", event " + std::to_string(event_) + ": " +
           FromQt(world_.doing);
}

}  // namespace calvoro::monkey
