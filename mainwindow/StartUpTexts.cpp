#include "mainwindow/StartUpTexts.h"

#include "text/ProgramText.h"

namespace calvoro {

std::optional<Texts> LoadTextsOrTell(std::string_view programFolder, MessageBoxes& boxes) {
    const LoadedTexts loaded = LoadProgramText(programFolder, "calvoro.dat");
    if (!loaded.texts) boxes.Show(loaded.message, "", MessageIcon::Critical);
    return loaded.texts;
}

}  // namespace calvoro
