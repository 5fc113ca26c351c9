#pragma once

#include <QTest>
#include <algorithm>

#include "windows/frmList.h"

namespace calvoro {

/// Waits until the list window has done what it was told: on a busy machine it takes more than one slice. The
/// counting of refusals may go on.
inline void WaitForJobs(const frmList& window) {
    const auto isDone = [&window] {
        const auto runners = window.findChildren<JobRunner*>(Qt::FindDirectChildrenOnly);
        return std::none_of(runners.begin(), runners.end(),
                            [](const JobRunner* runner) { return runner->IsRunning(); });
    };
    constexpr int kPatience = 60'000;  // milliseconds
    if (!QTest::qWaitFor(isDone, kPatience)) qFatal("the list window does not come to an end");
}

}  // namespace calvoro
