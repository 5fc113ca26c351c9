#include <QDialog>
#include <QFileDialog>
#include <QTimerEvent>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

// A note waits for its timer, or for a click.
bool EndNote(World& world, Dice& dice, QWidget& question) {
    auto* timer = question.findChild<QTimer*>(QStringLiteral("Timer1"));
    if (timer == nullptr) return false;
    if (dice.OneIn(2)) {
        world.Do(world.doing + QStringLiteral("; the note's time is over"));
        QTimerEvent over(timer->timerId());
        QCoreApplication::sendEvent(timer, &over);
    } else {
        world.Do(world.doing + QStringLiteral("; the note is clicked away"));
        ClickOnControl(*question.findChild<QWidget*>(QStringLiteral("lblMessage")), dice);
    }
    return true;
}

// The toolkit's dialog for files.
bool AnswerFileDialog(World& world, Dice& dice, QWidget& question) {
    auto* dialog = qobject_cast<QFileDialog*>(&question);
    if (dialog == nullptr) return false;
    constexpr std::array<const char*, 6> kNames = {"dates.txt", "table.csv", "saved.csv",
                                                   "saved.tsv", "bytes.bin", "missing.txt"};
    const bool opens = dialog->acceptMode() == QFileDialog::AcceptOpen;
    const QString path = world.PathOf(opens ? dice.OneOf(kNames) : dice.OneIn(2) ? "saved.csv" : "saved.tsv");
    world.Do(world.doing + QStringLiteral("; file ") + path.section(QLatin1Char('/'), -1));
    dialog->setDirectory(world.PathOf("."));
    dialog->selectFile(path);
    Key(world, dice.OneIn(3) ? Qt::Key_Escape : Qt::Key_Return);
    return true;
}

// A menu of the toolkit.
bool AnswerMenu(World& world, Dice& dice, const QWidget& question) {
    if (question.windowType() != Qt::Popup) return false;
    constexpr std::array<Qt::Key, 4> kKeys = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
    const Qt::Key key = dice.OneOf(kKeys);
    world.Do(world.doing + QStringLiteral("; in its menu ") + QKeySequence(key).toString());
    Key(world, key);
    return true;
}

}  // namespace

void ActInQuestion(World& world, Dice& dice, QWidget& question, int eventsSoFar) {
    constexpr int kPatience = 6;
    if (eventsSoFar >= kPatience) {
        world.Do(world.doing + QStringLiteral("; given up"));
        auto* const dialog = qobject_cast<QDialog*>(&question);
        dialog != nullptr ? dialog->reject() : static_cast<void>(question.close());
        return;
    }
    if (AnswerMenu(world, dice, question)) return;
    if (EndNote(world, dice, question) || AnswerFileDialog(world, dice, question)) return;
    const QString before = world.doing;
    switch (dice.Below(6)) {
        case 0: PressKey(world, dice); break;
        case 1: ClickSomewhere(world, dice); break;
        case 2: ChooseByMouse(world, dice); break;
        case 3: ChooseByKey(world, dice); break;
        case 4: ActAsAssistiveTool(world, dice); break;
        default:
            world.Do(QStringLiteral("answer by key"));
            Key(world, dice.OneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
    }
    world.Do(before + QStringLiteral("; in ") + QLatin1String(question.metaObject()->className()) +
             QStringLiteral(": ") + world.doing);
}

}  // namespace calvoro::monkey
