#pragma once

// What the list window shows: the lines, the column with the dates, the side, and the options as they stand.
// Looks at all rows whenever one of these changes, while nothing else is to be done, so that the number of
// refusals is known.

#include <QObject>
#include <memory>

#include "windows/list/JobRunner.h"
#include "windows/list/ListModel.h"
#include "windows/list/lines/ListOrder.h"
#include "windows/list/lines/ListSurvey.h"

namespace calvoro {

class ListContents : public QObject {
    Q_OBJECT

public:
    /// rows  must outlive this object
    ListContents(const ListRowSource& rows, QObject* parent);

    ListModel& Model() { return *model_; }
    const ListSheet& Sheet() const { return model_->Sheet(); }
    bool IsEmpty() const { return Sheet().lines->Count() == 0; }

    /// Shows other lines.
    void Show(std::shared_ptr<const ListLines> lines, ListSide side);

    ListSide Side() const { return side_; }
    void SetSide(ListSide side);
    void SetDateColumn(std::size_t column);

    /// The options have changed.
    void Refresh();

    /// The rows that have been looked at so far.
    std::shared_ptr<const ListSurvey> Survey() const { return survey_; }

    /// What puts the rows in order; nothing for a plain arrangement.
    std::shared_ptr<OrderRows> Arrange(const Arrangement& arrangement);

    /// Whether rows are looked at while nothing else is to be done.
    void SetActive(bool active) { surveyor_->SetResting(!active); }

Q_SIGNALS:
    /// More rows have been looked at.
    void Surveyed();

private:
    void BeginSurvey(bool withDays);

    const ListRowSource& rows_;
    ListModel* model_;
    JobRunner* surveyor_;
    ListSide side_ = ListSide::FirstDates;
    std::shared_ptr<ListSurvey> survey_;
};

}  // namespace calvoro
