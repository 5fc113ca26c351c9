#pragma once

#include <QKeyEvent>
#include <QTableView>
#include <vector>

#include "windows/list/ListModel.h"
#include "windows/list/lines/ListOutput.h"

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

/// The places of all rows of a list, or of those that are selected, from top to bottom.
std::vector<PlaceRange> AllPlaces(const ListModel& model);
std::vector<PlaceRange> SelectedPlaces(const ListTable& table, const ListModel& model);

}  // namespace calvoro
