#pragma once

#include <QKeyEvent>
#include <QTableView>

namespace calvoro {

/// The table of a list: whole rows are selected, nothing is edited, Tab leaves it.
class ListTable : public QTableView {
    Q_OBJECT

public:
    explicit ListTable(QWidget* parent);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Enter was pressed in a column, or its head was clicked.
    void ColumnChosen(int column);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FollowFont();
};

}  // namespace calvoro
