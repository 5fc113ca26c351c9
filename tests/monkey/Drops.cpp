#include <QDropEvent>
#include <QMimeData>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

void Fill(QMimeData& data, const World& world, Dice& dice) {
    constexpr std::array<const char*, 7> kFiles = {"dates.txt", "table.csv", "numbers.tsv", "empty.txt",
                                                   "bytes.bin", "folder",    "missing.txt"};
    switch (dice.Below(6)) {
        case 0: data.setUrls({QUrl::fromLocalFile(world.PathOf(dice.OneOf(kFiles)))}); break;
        case 1: data.setImageData(QImage(3, 3, QImage::Format_RGB32)); break;
        case 2:
            data.setUrls({QUrl(QStringLiteral("https://example.org/")),
                          QUrl::fromLocalFile(world.PathOf(dice.OneOf(kFiles)))});
            break;
        default: data.setText(OddText(world, dice));
    }
}

}  // namespace

void DropSomething(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr) return;
    QList<QWidget*> targets;
    for (QWidget* control : world.Active()->findChildren<QWidget*>()) {
        if (control->isVisible() && control->isEnabled()) targets.push_back(control);
    }
    if (targets.isEmpty()) return;
    QWidget* target = dice.OneOf(targets);
    if (world.Active() == world.main.window.get() && dice.OneIn(2)) {
        constexpr std::array<const char*, 3> kBoxes = {"txbFirstDate", "txbDateDiff", "txbSecondDate"};
        target = &world.Get<QLineEdit>(dice.OneOf(kBoxes));
    }
    QMimeData data;
    Fill(data, world, dice);
    world.Do(QStringLiteral("drop of %1 on %2").arg(data.formats().join(QLatin1Char(' ')), NameOf(*target)));
    while (!target->acceptDrops() && !target->isWindow()) target = target->parentWidget();
    world.typedInto.insert(qobject_cast<QLineEdit*>(target));

    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({2, 2}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return;
    QDragMoveEvent move({3, 3}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &move);
    if (dice.OneIn(10)) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(target, &leave);
        return;
    }
    QDropEvent drop(QPointF(3, 3), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
}

}  // namespace calvoro::monkey
