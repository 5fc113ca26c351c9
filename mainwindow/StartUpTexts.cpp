#include "mainwindow/StartUpTexts.h"

#include <string>

#include "text/ProgramText.h"

namespace calvoro {

bool LoadTextsOrTell(std::string_view programFolder, MessageBoxes& boxes) {
    const std::string failure = LoadProgramText(programFolder, "calvoro.dat");
    if (failure.empty()) return true;
    boxes.Show(failure, "", MessageIcon::Critical);
    return false;
}

}  // namespace calvoro
