#include "mainwindow/ReadingLine.h"

#include <QApplication>

#include "compute/ReadingText.h"
#include "windows/AccessibleSilence.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

// A screen reader would speak the new description of the box with the focus at every key that is typed. It
// is there to be asked for, so nobody is told that it changed.
void DescribeQuietly(QWidget& control, const QString& description) {
    const AccessibleSilence silence;
    control.setAccessibleDescription(description);
}

}  // namespace

ReadingLine::ReadingLine(QWidget* window, const MainControls& controls, const WindowOptions& options,
                         const MainState& state)
    : QObject(window), window_(*window), controls_(controls), options_(options), state_(state) {
    for (const QLineEdit* box : {controls.txbFirstDate, controls.txbDateDiff, controls.txbSecondDate}) {
        connect(box, &QLineEdit::textChanged, this, &ReadingLine::Refresh);
    }
    connect(qApp, &QApplication::focusChanged, this, &ReadingLine::Refresh);
    FollowOptions();
}

void ReadingLine::Refresh() {
    const ComputeOptions options = options_.ReadComputeOptions(state_.texts);
    QString line;
    for (const InputBox box : {InputBox::FirstDate, InputBox::Difference, InputBox::SecondDate}) {
        QLineEdit& edit = *controls_.Box(box);
        const QString reading = ToQt(ReadingText(box, FromQt(edit.text()), options));
        DescribeQuietly(edit, reading);
        // The window remembers its focus while another window is active.
        if (window_.focusWidget() == &edit) line = reading;
    }
    controls_.lblReading->setText(line);
}

void ReadingLine::FollowOptions() {
    for (const OptionGroup* options :
         {controls_.firstCalendars, controls_.secondCalendars, controls_.units, controls_.dateFormats,
          controls_.dateSeparators, controls_.thousandsSeparators}) {
        connect(options, &QButtonGroup::idToggled, this, &ReadingLine::Refresh);
    }
    connect(controls_.chkHyphen, &QCheckBox::toggled, this, &ReadingLine::Refresh);
}

}  // namespace calvoro
