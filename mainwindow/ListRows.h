#pragma once

// What a list shows beside each of its lines: what a Compute click would make of the line in the place of one
// date box, with everything else as it stands in the main window. Nothing there changes by it.

#include <memory>

#include "mainwindow/InputBoxes.h"
#include "mainwindow/MainState.h"
#include "mainwindow/WindowOptions.h"
#include "windows/list/lines/ListRow.h"

namespace calvoro {

class ListRows : public ListRowSource {
public:
    ListRows(const InputBoxes& boxes, const WindowOptions& options, const MainState& state);

    /// The difference counts when its box is filled, the other date box only when it is not.
    std::shared_ptr<ListRowMaker> Snapshot(ListSide side) const override;

private:
    const InputBoxes& boxes_;
    const WindowOptions& options_;
    const MainState& state_;
};

}  // namespace calvoro
