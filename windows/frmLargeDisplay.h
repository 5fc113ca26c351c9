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

/// What the copy button offers.
enum class CopyButton { Copy, CopySelected, Pause, Continue };

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

    /// Places the window, kept on the screen.
    /// outer  with the frame, pixels
    /// frame  what the window has, or will have when it is shown, around its contents
    void Place(QRect outer, QSize frame);

    /// The share of one character, in twips, of the width of a window that shows this line whole: its
    /// margins, its scroll bar and its frame included.
    std::int16_t CharacterWidth(std::string_view line) const;

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

    /// Sets title and accessible name in the language of the interface; the buttons' captions stay.
    void SetLanguageDependentText();

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
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // What the buttons offer. Their captions are where it is kept.
    struct ButtonState {
        CopyButton copy = CopyButton::Copy;
        bool stop = false;  // else: close
    };

    void OnCopyToClipboard();
    void Copy();
    void Pause();
    bool CloseOrStop();
    void UpdateCopyButton();
    ButtonState State() const;
    void SetCaptions(ButtonState state);
    void SetCopyButtonWidth(int german, int other);
    void ArrangeControls();
    void KeepLeastSize();

    Clipboard& clipboard_;
    const Texts& texts_;
    OutputBuffer buffer_;
    QSize frame_{0, 0};  // what the window has, or will have, around its contents
    bool paused_ = false;
    bool activated_ = false;

    QPlainTextEdit* txbOutput;
    QPushButton* cmdCopyToClipboard;
    QPushButton* cmdClose;
};

}  // namespace calvoro
