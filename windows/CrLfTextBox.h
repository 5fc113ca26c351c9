#pragma once

// A multi-line box whose text is CR LF text, also when a part of it is copied, dragged, pasted or dropped.

#include <QPlainTextEdit>

namespace calvoro {

class CrLfTextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit CrLfTextBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

    /// A caret that was seen stays seen.
    void resizeEvent(QResizeEvent* event) override;

private:
    void StandBesideWhatIsDeleted(const QKeyEvent& key);
};

}  // namespace calvoro
