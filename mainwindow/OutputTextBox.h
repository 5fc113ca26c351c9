#pragma once

// The multi-line box of the output. Its text is CR LF text throughout, so every line in it ends with a
// real line break: a soft break, which the toolkit offers, would be half a one.

#include <QPlainTextEdit>

namespace calvoro {

class OutputTextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit OutputTextBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace calvoro
