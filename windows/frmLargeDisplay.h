#pragma once

// The enlarged output: a resizable window with one large text box and two buttons. During a long output
// the buttons are "Pause"/"Continue" and "Stop". Its captions are its state and stay English in every
// language. Closing hides it; positions and widths that arguments give are twips.

#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "text/Texts.h"
#include "windows/OutputBuffer.h"

namespace calvoro {

class frmLargeDisplay : public QWidget {
    Q_OBJECT

public:
    frmLargeDisplay(const Platform& platform, const Texts& texts);

    /// Appends text and line breaks, subject to the buffer rule.
    /// scroll  the caret goes to the end, and the text box gets the focus
    void Output(std::string_view text, std::int16_t lineBreaks, bool scroll);

    void Clear();

    /// Puts the caret at the beginning, or the end, of the text and the focus into it.
    void ShowBeginning();
    void ShowEnd();

    /// Widens the window to fit a line, in the middle of the screen.
    /// characterWidth  twips
    /// screenShare     the part of the screen's width to keep to, (0, 1]
    void WidenDisplayIfNeeded(std::string_view text, std::int16_t characterWidth, double screenShare);

    /// Gives the copy button the caption and the width that fit what is selected.
    void SetCopyToClipboardButton();

    /// Shows a range of texts as lines.
    /// path   not used
    /// group  an empty line between texts of different folders
    void DisplayArray(const std::vector<std::string>& texts, std::size_t first, std::size_t last,
                      std::string_view path, bool group);

    /// What happens when the window is activated.
    void Form_Activate();

    /// Whether the window has ever been activated.
    bool Activated() const { return activated_; }

    /// What is written behind the notice that the buffer is full; empty until it is set.
    void SetBufferFullNote(std::string_view note) { buffer_.BufferFullNote = note; }

    /// Turns the buttons into "Pause" and "Stop" for a long output.
    void OfferPauseAndStop();

    /// The user has clicked "Stop", or nothing was offered to stop.
    bool Stopped() const;

Q_SIGNALS:
    void PauseOver();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void OnCopyToClipboard();
    void Pause();
    bool CloseOrStop();
    void UpdateCopyButton();
    void SetCaptions(const QString& copyCaption, const QString& closeCaption);
    void SetCopyButtonWidth(int german, int other);
    void ArrangeControls();

    Clipboard& clipboard_;
    const Texts& texts_;
    OutputBuffer buffer_;
    bool paused_ = false;
    bool activated_ = false;

    QPlainTextEdit* txbOutput;
    QPushButton* cmdCopyToClipboard;
    QPushButton* cmdClose;
};

}  // namespace calvoro
