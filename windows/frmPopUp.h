#pragma once

// A small frameless window that shows one short message for a time and disappears by itself. Every entry
// point returns only when the note is gone; a press on the message, or Esc, closes it early.
//
// Widths, heights, offsets and positions are twips, intervals milliseconds; an interval of 0 (or below)
// leaves the note until it is closed by hand. A note is never smaller than its message needs and never off
// the screen. One that is asked for while another is shown, as by a screen reader that presses a button
// behind it, takes its place.

#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <cstdint>
#include <optional>
#include <string_view>

namespace calvoro {

class frmPopUp : public QDialog {
    Q_OBJECT

public:
    explicit frmPopUp(QWidget* opener = nullptr);

    /// Shows the note with its top left corner at this place of the screen.
    void PopUp(std::string_view message, std::int16_t width, std::int16_t height, std::int16_t interval,
               int top, int left);

    /// Shows the note in the middle of the screen, reckoned with the size that the note had before.
    void PopUpCenterScreen(std::string_view message, std::int16_t width, std::int16_t height,
                           std::int16_t interval);

    /// As PopUp. The note has no buttons, so the answer is always false.
    void PopUpYesNo(std::string_view message, std::int16_t width, std::int16_t height, std::int16_t interval,
                    int top, int left, bool& result);

    /// As PopUpCenterScreen.
    /// returns  no answer
    std::optional<bool> PopUpYesNoCenterScreen(std::string_view message, std::int16_t width,
                                               std::int16_t height, std::int16_t interval);

    /// Shows the note at an offset from a window's top left corner. The message keeps the height that it
    /// had in the note before.
    void PopUpInForm(const QWidget& window, std::string_view message, std::int16_t width, std::int16_t height,
                     std::int16_t interval, int topOffset, int leftOffset);

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetMessage(std::string_view message);
    void Place(std::int16_t width, std::int16_t height, int top, int left);
    void ShowFor(std::int16_t interval);

    QLabel* lblMessage;
    QTimer* Timer1;
    bool answer_ = false;
};

/// Half of a length, with a half rounded to the even neighbour.
constexpr int HalfToEven(int length) {
    const int half = length / 2;
    if (length % 2 == 0) return half;
    const int outer = length > 0 ? half + 1 : half - 1;
    return half % 2 == 0 ? half : outer;
}

}  // namespace calvoro
