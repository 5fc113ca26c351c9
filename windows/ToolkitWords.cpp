#include "windows/ToolkitWords.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace calvoro {
namespace {

// As the toolkit's German file has them.
struct Word {
    std::string_view context;
    std::string_view english;
    const char* german;
};
constexpr std::array<Word, 18> kEverydayGerman = {{
    {"QPlatformTheme", "&Yes", "&Ja"},
    {"QPlatformTheme", "&No", "&Nein"},
    {"QPlatformTheme", "OK", "OK"},
    {"QPlatformTheme", "Cancel", "Abbrechen"},
    {"QLineEdit", "&Undo", "&Rückgängig"},
    {"QLineEdit", "&Redo", "Wieder&herstellen"},
    {"QLineEdit", "Cu&t", "&Ausschneiden"},
    {"QLineEdit", "&Copy", "&Kopieren"},
    {"QLineEdit", "&Paste", "Einf&ügen"},
    {"QLineEdit", "Delete", "Löschen"},
    {"QLineEdit", "Select All", "Alles auswählen"},
    {"QWidgetTextControl", "&Undo", "&Rückgängig"},
    {"QWidgetTextControl", "&Redo", "Wieder&herstellen"},
    {"QWidgetTextControl", "Cu&t", "&Ausschneiden"},
    {"QWidgetTextControl", "&Copy", "&Kopieren"},
    {"QWidgetTextControl", "&Paste", "Einf&ügen"},
    {"QWidgetTextControl", "Delete", "Löschen"},
    {"QWidgetTextControl", "Select All", "Alles auswählen"},
}};

class EverydayGerman : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                      int /*n*/) const override {
        const auto* const found = std::find_if(
            kEverydayGerman.begin(), kEverydayGerman.end(),
            [=](const Word& row) { return row.context == context && row.english == sourceText; });
        return found == kEverydayGerman.end() ? QString() : QString::fromUtf8(found->german);
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

ToolkitWords::ToolkitWords(QString folder) : folder_(std::move(folder)) {}

void ToolkitWords::Follow(LanguageNumber language) {
    if ((language == LanguageGerman) == (words_ != nullptr)) return;
    if (language != LanguageGerman) {
        words_.reset();
        return;
    }
    words_ = std::make_unique<QTranslator>();
    if (!words_->load(QStringLiteral("qtbase_de"), folder_)) words_ = std::make_unique<EverydayGerman>();
    QCoreApplication::installTranslator(words_.get());
}

}  // namespace calvoro
