#pragma once

// The toolkit's own words, such as those on the buttons of a question and in the menus of text boxes, in
// the language of the interface, whatever the system's language is.

#include <QString>
#include <QTranslator>
#include <memory>

#include "text/Language.h"

namespace calvoro {

class ToolkitWords {
public:
    /// Follows no language yet: the toolkit's words are English.
    /// folder  where the toolkit keeps its translations
    explicit ToolkitWords(QString folder);

    /// Gives the whole program the toolkit's words in a language; English where there are none. A German
    /// that is not installed is made up for in the words that people meet every day.
    void Follow(LanguageNumber language);

private:
    QString folder_;
    std::unique_ptr<QTranslator> words_;  // a translator takes itself off the program when it goes
};

}  // namespace calvoro
