#pragma once

// CR LF text as the toolkit's text documents hold it. A document knows one kind of line break and takes some
// characters for one, or for a mark of its own; a substitute stands there for each of them, a lone surrogate,
// which no text can hold. And it lays out a line as a whole, in a time that grows with the square of its
// length: a long line is therefore broken into several, by soft breaks that belong to the document alone.

#include <QString>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace calvoro {

/// Replaces what a cursor has selected by a text, as one step to be undone, and breaks long lines.
/// text  UTF-8 with CR LF
void InsertInDocument(QTextCursor& cursor, std::string_view text);

/// The text of characters of a document, UTF-8 with CR LF.
/// characters  U+2029 for line breaks, as the toolkit hands them out
/// position    of the first of them in the document
std::string TextOfDocument(const QTextDocument& document, const QString& characters, int position);

/// Whether the line break before a block is a soft one.
bool IsSoftBreak(const QTextBlock& block);

/// The number of soft breaks. Costs nothing while the document does not change, nor where no line has ever
/// been a long one.
int SoftBreakCount(QTextDocument& document);

}  // namespace calvoro
