#include "windows/list/ListTable.h"

#include <QHeaderView>

namespace calvoro {

ListTable::ListTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerItem);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    FollowFont();
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ListTable::ColumnChosen);
}

// Rows as low as their text allows: there are many.
void ListTable::FollowFont() {
    constexpr int kAir = 6;  // pixels
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kAir);
}

void ListTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) FollowFont();
}

QSize ListTable::sizeHint() const {
    constexpr int kCharacters = 135;
    constexpr int kRows = 20;
    return {kCharacters * fontMetrics().averageCharWidth(), kRows * verticalHeader()->defaultSectionSize()};
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !event->isAutoRepeat() && currentIndex().isValid()) {
        Q_EMIT ColumnChosen(currentIndex().column());
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

}  // namespace calvoro
