#include "windows/DocumentText.h"

#include <QList>
#include <QStringView>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QVariant>
#include <algorithm>
#include <array>

#include "windows/QtText.h"

namespace calvoro {
namespace {

struct Substitute {
    char16_t character;
    char16_t shown;
};
constexpr std::array<Substitute, 5> kSubstitutes = {{
    {u'\n', 0xDC0A},
    {u'\r', 0xDC0D},
    {0x2029, 0xDC29},  // the toolkit's line break,
    {0xFDD0, 0xDDD0},  // its beginning of a frame
    {0xFDD1, 0xDDD1},  // and its end of one
}};

// More than any result line has, and few enough to be laid out in no time.
constexpr qsizetype kLongestLine = 1000;

// A soft break is a line break with this property: it comes and goes with the break itself, by undoing too.
constexpr int kSoftBreakProperty = QTextFormat::UserProperty;

// What a document remembers: how many soft breaks it had at which of its revisions.
constexpr const char* kCount = "softBreakCount";
constexpr const char* kRevision = "softBreakRevision";

// The characters of a document for a text, without soft breaks.
QString DocumentCharacters(std::string_view text) {
    QString characters = ToQt(text);
    qsizetype kept = 0;
    for (qsizetype i = 0; i < characters.size(); ++i) {
        QChar character = characters[i];
        if (character == u'\r' && i + 1 < characters.size() && characters[i + 1] == u'\n') {
            ++i;
            character = QChar::ParagraphSeparator;
        } else {
            for (const Substitute& row : kSubstitutes) {
                if (row.character == character) character = row.shown;
            }
        }
        characters[kept++] = character;
    }
    characters.truncate(kept);
    return characters;
}

// Where to break a line of more than `most` characters: behind a blank if there is one in the second half,
// and never inside a character.
qsizetype BreakPosition(QStringView line, qsizetype most) {
    const qsizetype blank = line.first(most).lastIndexOf(u' ');
    if (blank >= most / 2) return blank + 1;
    constexpr qsizetype kMostMarks = 16;
    for (qsizetype end = most; end > std::max<qsizetype>(most - kMostMarks, 0); --end) {
        const bool halvesPair = line[end].isLowSurrogate() && line[end - 1].isHighSurrogate();
        if (!halvesPair && !line[end].isMark()) return end;
    }
    return most;
}

// Where soft breaks go among characters that stand behind `column` others in their line.
QList<qsizetype> SoftBreaks(QStringView characters, qsizetype column) {
    QList<qsizetype> breaks;
    qsizetype start = 0;
    while (start < characters.size()) {
        qsizetype end = characters.indexOf(QChar::ParagraphSeparator, start);
        if (end < 0) end = characters.size();
        while (column + end - start > kLongestLine) {
            const qsizetype room = kLongestLine - column;
            if (room > 0) start += BreakPosition(characters.sliced(start), room);
            breaks.append(start);
            column = 0;
        }
        start = end + 1;
        column = 0;
    }
    return breaks;
}

QTextCharFormat SoftBreakFormat() {
    QTextCharFormat format;
    format.setProperty(kSoftBreakProperty, true);
    return format;
}

bool MayHaveSoftBreaks(const QTextDocument& document) {
    return document.property(kRevision).isValid();
}

}  // namespace

void InsertInDocument(QTextCursor& cursor, std::string_view text) {
    const QTextCharFormat plain;
    const QTextCharFormat soft = SoftBreakFormat();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QString characters = DocumentCharacters(text);
    const QList<qsizetype> breaks = SoftBreaks(characters, cursor.positionInBlock());
    qsizetype start = 0;
    for (const qsizetype end : breaks) {
        cursor.insertText(characters.sliced(start, end - start), plain);
        cursor.insertBlock(QTextBlockFormat(), soft);
        start = end;
    }
    cursor.insertText(characters.sliced(start), plain);
    cursor.endEditBlock();
    if (!breaks.isEmpty()) cursor.document()->setProperty(kRevision, -1);
}

std::string TextOfDocument(const QTextDocument& document, const QString& characters, int position) {
    const bool mayHaveSoftBreaks = MayHaveSoftBreaks(document);
    QString text;
    text.reserve(characters.size() + document.blockCount());
    for (qsizetype i = 0; i < characters.size(); ++i) {
        const QChar character = characters[i];
        if (character == QChar::ParagraphSeparator) {
            const int behind = position + static_cast<int>(i) + 1;
            if (!mayHaveSoftBreaks || !IsSoftBreak(document.findBlock(behind))) text += u"\r\n";
        } else if (character.isHighSurrogate() && i + 1 < characters.size()) {
            text += character;
            text += characters[++i];
        } else {
            text += character;
            for (const Substitute& row : kSubstitutes) {
                if (row.shown == character) text.back() = row.character;
            }
        }
    }
    return FromQt(text);
}

bool IsSoftBreak(const QTextBlock& block) {
    return block.position() > 0 && block.charFormat().boolProperty(kSoftBreakProperty);
}

int SoftBreakCount(QTextDocument& document) {
    if (!MayHaveSoftBreaks(document)) return 0;
    if (document.property(kRevision).toInt() != document.revision()) {
        int count = 0;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (IsSoftBreak(block)) ++count;
        }
        document.setProperty(kCount, count);
        document.setProperty(kRevision, document.revision());
    }
    return document.property(kCount).toInt();
}

}  // namespace calvoro
