#pragma once

// The month calendar window: one month of the Common Era or the Julian Calendar as text, on request with
// the ISO week dates of its weeks below. Closing hides it.

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/MonthText.h"
#include "platform/Platform.h"
#include "text/Texts.h"
#include "windows/Announcer.h"
#include "windows/MonthControls.h"

namespace calvoro {

class frmDisplayMonth : public QWidget {
    Q_OBJECT

public:
    /// texts       its TextLanguage follows the interface's language whenever the window is activated
    /// mainWindow  gets the focus back when this window is closed
    /// formReady   false leaves the ISO controls' availability as it is
    frmDisplayMonth(const Platform& platform, Texts& texts, QWidget& mainWindow,
                    std::function<bool()> formReady);

    /// Sets the controls without drawing, shows the window, near the main window when it was hidden, and
    /// draws the month.
    /// year      as plain digits; any other text is the user's to mend
    /// month     1 to 12
    /// calendar  CE or JC
    void ShowMonth(std::string_view year, std::int32_t month, CalendarNumber calendar);

    /// Draws the month that the controls tell. Does nothing while the window is hidden.
    void DisplayMonth();

    /// The options as the settings keep them. Setting them runs no click handler; a month that is shown is
    /// drawn anew.
    WeekStart GetWeekStart() const;
    void SetWeekStart(WeekStart weekStart);
    CalendarNumber GetCalendar() const;
    void SetCalendar(CalendarNumber calendar);

    /// Sets every named text in the language of the interface. A month that is shown is drawn anew, without
    /// a message and with the focus where it is.
    void SetLanguageDependentText();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ConnectControls();
    void OnActivated();
    void SetCaptions();
    void SetTitle();

    bool Draw();
    std::string Heading() const;
    std::string_view CalendarName() const;
    void AnnounceHeading();
    void ShowIsoDates();
    void UpdateIsoButton();
    void OnShowHideISO();
    void HideIso();
    void FollowIsoPossible();
    void OnOptionsSet();
    bool IsoPossible() const;

    void OnDisplayNextMonth(int index);
    void ChooseMonth(int index);
    bool ChangeYear(int years);
    void ChooseCalendar(CalendarNumber calendar);
    void PleaseSpecifyYear();
    void OnCopyToClipboard();
    void OnClose();

    MessageBoxes& boxes_;
    Clipboard& clipboard_;
    Texts& texts_;
    QWidget& mainWindow_;
    std::function<bool()> formReady_;

    bool isoShown_ = false;
    std::int16_t weekRows_ = 0;       // of the grid last drawn
    std::int32_t firstShownJdn_ = 0;  // of the grid last drawn

    MonthControls ui_;
    Announcer* announcer_;
    std::string announced_;  // the heading, while the window is open
    bool announceWhenActive_ = false;
    QTimer whenIdle_;  // goes off when the events at hand are done
};

}  // namespace calvoro
