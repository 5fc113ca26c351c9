// The toolkit's words follow the language of the interface, with and without the toolkit's German file.

#include "windows/ToolkitWords.h"

#include <QAction>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace calvoro {
namespace {

QString InstalledFolder() {
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

QString ButtonCaption(QMessageBox::StandardButton button) {
    QMessageBox box;
    box.setStandardButtons(button);
    return box.button(button)->text();
}

template <typename Box>
QStringList MenuOf() {
    Box box;
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
    QStringList words;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator()) words.push_back(action->text().section(u'\t', 0, 0));
    }
    return words;
}

QStringList Words() {
    return QStringList{ButtonCaption(QMessageBox::Yes), ButtonCaption(QMessageBox::No),
                       ButtonCaption(QMessageBox::Ok), ButtonCaption(QMessageBox::Cancel)} +
           MenuOf<QLineEdit>() + MenuOf<QPlainTextEdit>();
}

const QStringList kEnglish = {
    QStringLiteral("&Yes"),   QStringLiteral("&No"),        QStringLiteral("OK"),
    QStringLiteral("Cancel"), QStringLiteral("&Undo"),      QStringLiteral("&Redo"),
    QStringLiteral("Cu&t"),   QStringLiteral("&Copy"),      QStringLiteral("&Paste"),
    QStringLiteral("Delete"), QStringLiteral("Select All"), QStringLiteral("&Undo"),
    QStringLiteral("&Redo"),  QStringLiteral("Cu&t"),       QStringLiteral("&Copy"),
    QStringLiteral("&Paste"), QStringLiteral("Delete"),     QStringLiteral("Select All")};
const QStringList kGerman = {QStringLiteral("&Ja"),
                             QStringLiteral("&Nein"),
                             QStringLiteral("OK"),
                             QStringLiteral("Abbrechen"),
                             QStringLiteral("&Rückgängig"),
                             QStringLiteral("Wieder&herstellen"),
                             QStringLiteral("&Ausschneiden"),
                             QStringLiteral("&Kopieren"),
                             QStringLiteral("Einf&ügen"),
                             QStringLiteral("Löschen"),
                             QStringLiteral("Alles auswählen"),
                             QStringLiteral("&Rückgängig"),
                             QStringLiteral("Wieder&herstellen"),
                             QStringLiteral("&Ausschneiden"),
                             QStringLiteral("&Kopieren"),
                             QStringLiteral("Einf&ügen"),
                             QStringLiteral("Löschen"),
                             QStringLiteral("Alles auswählen")};

}  // namespace

class ToolkitWordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FollowTheLanguage_data() {
        QTest::addColumn<QString>("folder");
        QTest::newRow("with the toolkit's German") << InstalledFolder();
        QTest::newRow("without it") << QStringLiteral("/nowhere");
    }
    void FollowTheLanguage() {
        QFETCH(const QString, folder);
        {
            ToolkitWords words(folder);
            QCOMPARE(Words(), kEnglish);
            for (int round = 0; round < 2; ++round) {
                words.Follow(LanguageGerman);
                QCOMPARE(Words(), kGerman);
                words.Follow(LanguageEnglish);
                QCOMPARE(Words(), kEnglish);
            }
            words.Follow(LanguageSpanish);
            QCOMPARE(Words(), kEnglish);
            words.Follow(LanguageGerman);
            words.Follow(LanguageGerman);
        }
        QCOMPARE(Words(), kEnglish);
    }

    // The menus of scroll bars and the dialogs of files come with the toolkit's file.
    void TheToolkitsFileIsFound() {
        ToolkitWords words(InstalledFolder());
        words.Follow(LanguageGerman);
        QCOMPARE(QCoreApplication::translate("QFileDialog", "File &name:"), QStringLiteral("Datei&name:"));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::ToolkitWordsTest)
#include "ToolkitWordsTest.moc"
