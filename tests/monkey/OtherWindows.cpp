// The help, the enlarged output and the question which box to empty.

#include <QRadioButton>

#include "datetext/Blanks.h"
#include "mainwindow/frmClearOneTextBox.h"
#include "tests/monkey/Invariants.h"
#include "tests/windows/WindowTesting.h"
#include "windows/HelpText.h"
#include "windows/QtText.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmList.h"
#include "windows/list/ListWords.h"

namespace calvoro::monkey {
namespace {

std::string Help(const World& world, const HelpTexts& helpTexts) {
    const auto* help = world.Open<frmHelp>();
    if (help == nullptr) return {};
    const LanguageNumber language = LanguageSeen(world);
    const auto shown =
        static_cast<std::size_t>(language == LanguageGerman ? LanguageGerman : LanguageEnglish);
    if (TextOf(*help, "txbMsg") != helpTexts[shown]) return "the help is another text";
    const Texts texts(language, language);
    const QString title = QStringLiteral("Calvoro ") + ToQt(texts.Shown(TextId::Help));
    return help->windowTitle() == title ? std::string() : "the help has another title";
}

std::string Enlarged(const World& world, const Before& before) {
    const auto* large = world.Open<frmLargeDisplay>();
    if (large == nullptr) return {};
    const std::string text = TextOf(*large, "txbOutput");
    const std::string output = SettingsSeen(world).output;
    if (text != before.enlarged && text != TrimBlanks(output) && text != TrimBlanks(before.output)) {
        return "the enlarged window has another text";
    }
    const bool selected = Control<QPlainTextEdit>(*large, "txbOutput").textCursor().hasSelection();
    const QString copy =
        selected ? QStringLiteral("Copy selected text to clipboard") : QStringLiteral("Copy to clipboard");
    return CaptionOf(*large, "cmdCopyToClipboard") == copy ? std::string()
                                                           : "the copy button does not fit what is selected";
}

std::string Question(const World& world) {
    const auto* question = world.Open<frmClearOneTextBox>();
    if (question == nullptr) return {};
    int chosen = 0;
    for (const auto* option : question->findChildren<QRadioButton*>()) chosen += option->isChecked() ? 1 : 0;
    return chosen == 1 ? std::string() : "the question has no answer, or several";
}

std::string ListTitle(const World& world) {
    const auto* list = world.Open<frmList>();
    if (list == nullptr) return {};
    const ListWords& words = WordsOfList(LanguageSeen(world));
    return list->windowTitle() == ToQt(words.title) ? std::string()
                                                    : "the list has a title in another language";
}

}  // namespace

std::string OtherWindows(const World& world, const Before& before) {
    static const HelpTexts kHelpTexts = FillHelpText(MainWindowFixture::Addresses());
    for (const std::string& fault :
         {Help(world, kHelpTexts), Enlarged(world, before), Question(world), ListTitle(world)}) {
        if (!fault.empty()) return fault;
    }
    return {};
}

}  // namespace calvoro::monkey
