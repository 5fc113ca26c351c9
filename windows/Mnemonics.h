#pragma once

// Keys for captions: which letter of each caption is underlined and reached with Alt. Captions keep their
// words; only the toolkit's mark "&" is put into them.

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace calvoro {

/// The captions of one window, each with a mark before a letter or digit that no other of them uses: the
/// beginning of a word where possible. A caption for which no key is left stays as it is.
/// firstServed  so many captions at the beginning keep the best key that is free when their turn comes; the
///              others make room for each other
QStringList WithMnemonics(const QStringList& captions, qsizetype firstServed = 0);

/// Marks the captions of one window's buttons and labels anew.
void SetMnemonics(const QList<QWidget*>& controls, qsizetype firstServed = 0);

/// A button's or a label's caption without the mark.
QString Caption(const QWidget& control);

/// Sets a button's or a label's caption.
void SetCaption(QWidget& control, const QString& caption);

/// A caption without the mark.
QString WithoutMnemonic(const QString& caption);

}  // namespace calvoro
