#include "windows/list/ListContents.h"

#include <utility>

namespace calvoro {

ListContents::ListContents(const ListRowSource& rows, QObject* parent)
    : QObject(parent),
      rows_(rows),
      model_(new ListModel(this)),
      surveyor_(new JobRunner(this)),
      survey_(std::make_shared<ListSurvey>(ListSheet(), false)) {
    connect(surveyor_, &JobRunner::Progressed, this, &ListContents::Surveyed);
    model_->SetSheet({std::make_shared<ListLines>(), 0, rows_.Snapshot(side_)});
}

void ListContents::Show(std::shared_ptr<const ListLines> lines, ListSide side) {
    side_ = side;
    model_->SetSheet({std::move(lines), 0, rows_.Snapshot(side_)});
    BeginSurvey(false);
}

void ListContents::SetSide(ListSide side) {
    side_ = side;
    Refresh();
}

void ListContents::SetDateColumn(std::size_t column) {
    model_->SetDateColumn(column);
    BeginSurvey(survey_->HasDays());
}

void ListContents::Refresh() {
    model_->SetMaker(rows_.Snapshot(side_));
    BeginSurvey(survey_->HasDays());
}

std::shared_ptr<OrderRows> ListContents::Arrange(const Arrangement& arrangement) {
    if (arrangement.IsPlain()) return {};
    if (arrangement.byDay && !survey_->HasDays()) BeginSurvey(true);
    return std::make_shared<OrderRows>(survey_, arrangement);
}

void ListContents::BeginSurvey(bool withDays) {
    survey_ = std::make_shared<ListSurvey>(Sheet(), withDays);
    surveyor_->Start(survey_, [this] { Q_EMIT Surveyed(); });
}

}  // namespace calvoro
