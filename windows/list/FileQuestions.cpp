#include "windows/list/FileQuestions.h"

#include <QFileDialog>

#include "windows/QtText.h"

namespace calvoro {
namespace {

std::optional<std::string> Ask(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return FromQt(dialog.selectedFiles().first());
}

}  // namespace

std::optional<std::string> AskWhatToOpen(QWidget& window, const ListWords& words) {
    QFileDialog dialog(&window, ToQt(words.openTitle));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog);
}

std::optional<std::string> AskWhereToSave(QWidget& window, const ListWords& words) {
    QFileDialog dialog(&window, ToQt(words.saveTitle));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QString tabSeparated = ToQt(words.tabSeparated) + QStringLiteral(" (*.tsv *.txt)");
    const QString csv = ToQt(words.csv) + QStringLiteral(" (*.csv)");
    dialog.setNameFilters({tabSeparated, csv});
    dialog.setDefaultSuffix(QStringLiteral("tsv"));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, csv](const QString& filter) {
        dialog.setDefaultSuffix(filter == csv ? QStringLiteral("csv") : QStringLiteral("tsv"));
    });
    return Ask(dialog);
}

}  // namespace calvoro
