#include <QClipboard>
#include <QMimeData>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {

void PasteText(World& world, Dice& dice) {
    const QString text = OddText(world, dice);
    world.Do(QStringLiteral("paste of ") + text.left(60));
    auto* const data = new QMimeData;
    if (!dice.OneIn(20)) data->setText(text);
    if (dice.OneIn(20)) data->setHtml(QStringLiteral("<p>") + text.toHtmlEscaped());
    if (dice.OneIn(20)) data->setImageData(QImage(3, 3, QImage::Format_RGB32));
    if (dice.OneIn(20)) data->setUrls({QUrl::fromLocalFile(world.PathOf("dates.txt"))});
    QGuiApplication::clipboard()->setMimeData(data);
    if (world.Active() == world.main.window.get() && !dice.OneIn(4)) {
        constexpr std::array<const char*, 3> kBoxes = {"txbFirstDate", "txbDateDiff", "txbSecondDate"};
        auto& box = world.Get<QLineEdit>(dice.OneOf(kBoxes));
        box.setFocus(Qt::TabFocusReason);
        if (dice.OneIn(2)) box.selectAll();
    }
    switch (dice.Below(4)) {
        case 0: Key(world, Qt::Key_Insert, Qt::ShiftModifier); break;
        case 1: {
            // The entry with the shortcut's letter in the context menu comes with the next keys.
            Key(world, Qt::Key_Menu);
            break;
        }
        default: Key(world, Qt::Key_V, Qt::ControlModifier);
    }
}

}  // namespace calvoro::monkey
