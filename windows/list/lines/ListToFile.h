#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/FileReplacement.h"
#include "windows/list/lines/ListOutput.h"

namespace calvoro {

/// Writes rows into a file, which is replaced when all of them are written and otherwise stays as it was.
class ListToFile : public ListOutput {
public:
    /// path  UTF-8
    ListToFile(ListSheet sheet, ChosenRows rows, OutputForm form, const std::string& path)
        : ListOutput(std::move(sheet), std::move(rows), form), file_(path) {}

    /// The system's number of the error; 0 when there is none.
    int Error() const { return file_.Error(); }

protected:
    bool Take(std::string_view lines) override {
        file_.Write(lines);
        return file_.Error() == 0;
    }
    void Finish() override { file_.Commit(); }

private:
    FileReplacement file_;
};

}  // namespace calvoro
