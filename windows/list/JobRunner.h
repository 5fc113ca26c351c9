#pragma once

// Does jobs on the event loop: a slice of one, then whatever the windows have to do, then the next slice.

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>

#include "windows/list/lines/SlicedJob.h"

namespace calvoro {

class JobRunner : public QObject {
    Q_OBJECT

public:
    explicit JobRunner(QObject* parent);

    /// Begins a job, in place of one that runs. What takes no longer than one slice is done on return.
    /// done  called when it is finished, not when it is stopped
    void Start(std::shared_ptr<SlicedJob> job, std::function<void()> done);

    /// Drops the job, if one runs.
    void Stop();

    /// While resting no slice is done, also of jobs that begin; they keep what they have.
    void SetResting(bool resting);

    bool IsRunning() const { return job_ != nullptr; }

    /// How much of the job is done.
    /// returns  [0, 1]
    double Done() const { return job_ ? job_->Done() : 1; }

    /// From when on a job is told to be slow, in milliseconds.
    static constexpr int kSlow = 500;

Q_SIGNALS:
    /// After a slice that did not finish the job.
    void Progressed();

    /// Once a job, when it has taken longer than kSlow.
    void Slow();

    /// The job is finished, stopped, or gave up.
    void Ended();

    /// The job gave up: there was not enough memory.
    void OutOfMemory();

private:
    void Turn();
    void End();

    QTimer* timer_;
    QElapsedTimer running_;
    std::shared_ptr<SlicedJob> job_;
    std::function<void()> done_;
    bool toldSlow_ = false;
    bool resting_ = false;
};

}  // namespace calvoro
