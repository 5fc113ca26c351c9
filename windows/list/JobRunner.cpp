#include "windows/list/JobRunner.h"

#include <new>
#include <utility>

namespace calvoro {

JobRunner::JobRunner(QObject* parent) : QObject(parent), timer_(new QTimer(this)) {
    connect(timer_, &QTimer::timeout, this, &JobRunner::Turn);
}

void JobRunner::Start(std::shared_ptr<SlicedJob> job, std::function<void()> done) {
    Stop();
    job_ = std::move(job);
    done_ = std::move(done);
    toldSlow_ = false;
    running_.start();
    if (resting_) return;
    timer_->start(0);
    Turn();
}

void JobRunner::Stop() {
    if (job_ != nullptr) End();
}

void JobRunner::SetResting(bool resting) {
    resting_ = resting;
    if (resting) {
        timer_->stop();
    } else if (job_ != nullptr) {
        timer_->start(0);
    }
}

void JobRunner::Turn() {
    constexpr int kSlice = 8;  // milliseconds
    QElapsedTimer slice;
    slice.start();
    bool finished = false;
    try {
        while (!finished && slice.elapsed() < kSlice) finished = job_->Step();
    } catch (const std::bad_alloc&) {
        End();
        Q_EMIT OutOfMemory();
        return;
    }
    if (finished) {
        const std::function<void()> done = std::move(done_);
        End();
        done();
        return;
    }
    if (!toldSlow_ && running_.elapsed() > kSlow) {
        toldSlow_ = true;
        Q_EMIT Slow();
    }
    Q_EMIT Progressed();
}

void JobRunner::End() {
    timer_->stop();
    done_ = nullptr;
    job_.reset();
    Q_EMIT Ended();
}

}  // namespace calvoro
