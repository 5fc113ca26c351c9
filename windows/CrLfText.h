#pragma once

// A multi-line text box seen as CR LF text. The toolkit counts a line break as one character; everywhere
// else in the program it is two. Characters are UTF-16 code units, as the text box itself counts them.
// Every text comes back as it was set, byte for byte; how the box manages to hold it is DocumentText's
// affair. None of these costs the whole text but the two that return or replace it.

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace calvoro {

/// Length of a box's text.
int CrLfLength(const QPlainTextEdit& box);

/// A box's text, UTF-8 with CR LF.
std::string CrLfText(const QPlainTextEdit& box);

/// The selected part of a box's text, UTF-8 with CR LF; empty when nothing is selected.
std::string SelectedCrLfText(const QPlainTextEdit& box);

/// Replaces a box's text; the caret goes to its beginning.
void SetCrLfText(QPlainTextEdit& box, std::string_view text);

/// Puts text at the end of a box's text, leaving caret and selection where they are.
void AppendCrLfText(QPlainTextEdit& box, std::string_view text);

/// Cuts a box's text to its first characters. A line break or a character of two code units that the cut
/// would halve is left out.
/// length  [0, CrLfLength]
void CutCrLfText(QPlainTextEdit& box, int length);

/// Puts the caret before the character with this offset, or at the end when the text is shorter; nothing
/// is selected afterwards.
/// offset  from 0
void SetCaret(QPlainTextEdit& box, int offset);

}  // namespace calvoro
