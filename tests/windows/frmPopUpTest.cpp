#include "windows/frmPopUp.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QScreen>
#include <functional>

#include "tests/windows/WindowTesting.h"
#include "windows/Twips.h"

namespace calvoro {
namespace {

constexpr int kGuardTime = 20000;  // milliseconds after which a note that stayed open is a failure

// What was to be seen of a note while it was shown.
struct SeenNote {
    bool visible = false;
    bool modal = false;
    bool timerActive = false;
    int interval = 0;
    QString message;
    QRect place;
    QSize message_size;
};

class Note : public frmPopUp {
public:
    using frmPopUp::frmPopUp;

    QLabel& Message() { return Control<QLabel>(*this, "lblMessage"); }
    QTimer& Timer() { return *findChild<QTimer*>(QStringLiteral("Timer1")); }

    /// Looks at the note as soon as it is shown, does something to it, and sees to it that it is closed in
    /// the end.
    void WhenShown(SeenNote& seen, const std::function<void()>& act) {
        QTimer::singleShot(0, this, [this, &seen, act] {
            seen = {isVisible(),        isModal(),        Timer().isActive(),
                    Timer().interval(), Message().text(), QRect(pos(), size()),
                    Message().size()};
            act();
        });
        QTimer::singleShot(kGuardTime, this, &QDialog::reject);
    }

    /// Shows a note until it is pressed.
    SeenNote Press(const std::function<void()>& show) {
        SeenNote seen;
        WhenShown(seen, [this] { QTest::mousePress(&Message(), Qt::LeftButton); });
        show();
        return seen;
    }
};

}  // namespace

class frmPopUpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheMessageModallyAtItsPlace() {
        Note note;
        const SeenNote seen = note.Press([&note] { note.PopUp("Copied", 1500, 450, 30000, 1200, 750); });
        QVERIFY(seen.visible);
        QVERIFY(seen.modal);
        QVERIFY(seen.timerActive);
        QCOMPARE(seen.interval, 30000);
        QCOMPARE(seen.message, QStringLiteral("Copied"));
        QCOMPARE(seen.place, QRect(50, 80, 100, 30));
        QCOMPARE(seen.message_size, QSize(100, 30));
    }

    void HidesByItselfAfterItsTime() {
        Note note;
        QElapsedTimer watch;
        watch.start();
        note.PopUp("Copied", 1500, 300, 150, 0, 0);
        QVERIFY(watch.elapsed() >= 150);
        QVERIFY(watch.elapsed() < kGuardTime);
        QVERIFY(!note.isVisible());
        QVERIFY(!note.Timer().isActive());
    }

    void APressClosesAtOnce() {
        Note note;
        QElapsedTimer watch;
        watch.start();
        note.Press([&note] { note.PopUp("Copied", 1500, 300, 32767, 0, 0); });
        QVERIFY(watch.elapsed() < kGuardTime);
        QVERIFY(!note.isVisible());
        QVERIFY(!note.Timer().isActive());
    }

    // A screen reader can press a button behind the note.
    void ANoteThatIsAskedForWhileOneIsShownTakesItsPlace() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        Note note;
        SeenNote first;
        SeenNote second;
        bool wasOpenAfterTheSecond = true;
        note.WhenShown(first, [&note, &second, &wasOpenAfterTheSecond] {
            second = note.Press([&note] { note.PopUp("again", 1500, 300, 30000, 0, 0); });
            wasOpenAfterTheSecond = note.isVisible();
        });
        note.PopUp("Copied", 1500, 300, 20000, 0, 0);
        QCOMPARE(first.message, QStringLiteral("Copied"));
        QCOMPARE(second.message, QStringLiteral("again"));
        QCOMPARE(second.interval, 30000);
        QVERIFY(!wasOpenAfterTheSecond);
        QVERIFY(!note.isVisible());
    }

    void EscClosesToo() {
        Note note;
        SeenNote seen;
        note.WhenShown(seen, [&note] { QTest::keyClick(&note, Qt::Key_Escape); });
        note.PopUp("Copied", 1500, 300, 0, 0, 0);
        QVERIFY(seen.visible);
        QVERIFY(!note.isVisible());
    }

    void StaysUntilItIsPressedWithoutAnInterval_data() {
        QTest::addColumn<int>("interval");
        QTest::newRow("zero") << 0;
        QTest::newRow("negative") << -5;
    }

    void StaysUntilItIsPressedWithoutAnInterval() {
        QFETCH(const int, interval);
        Note note;
        SeenNote seen;
        bool stayed = false;
        note.WhenShown(seen, [&note, &stayed] {
            QTest::qWait(150);
            stayed = note.isVisible();
            QTest::mousePress(&note.Message(), Qt::RightButton);
        });
        note.PopUp("Copied", 1500, 300, static_cast<std::int16_t>(interval), 0, 0);
        QVERIFY(stayed);
        QVERIFY(!seen.timerActive);
        QVERIFY(!note.isVisible());
    }

    void ATimerOfAnEarlierNoteDoesNotCloseALaterOne() {
        Note note;
        note.Press([&note] { note.PopUp("first", 1500, 300, 100, 0, 0); });
        SeenNote seen;
        bool stayed = false;
        note.WhenShown(seen, [&note, &stayed] {
            QTest::qWait(250);
            stayed = note.isVisible();
            note.reject();
        });
        note.PopUp("second", 1500, 300, 0, 0, 0);
        QVERIFY(stayed);
    }

    void DeliberatelyCentresWithTheSizeOfTheNoteBefore() {
        Note note;
        const QRect screen = note.screen()->geometry();
        const auto centre = [&screen](QSize size) {
            const int left = HalfToEven(PixelsToTwips(screen.width() - size.width()));
            const int top = HalfToEven(PixelsToTwips(screen.height() - size.height()));
            return screen.topLeft() + QPoint(TwipsToPixels(left), TwipsToPixels(top));
        };
        const QSize design = note.size();
        const SeenNote first = note.Press([&note] { note.PopUpCenterScreen("first", 3000, 900, 0); });
        QCOMPARE(first.place, QRect(centre(design), QSize(200, 60)));
        const SeenNote second = note.Press([&note] { note.PopUpCenterScreen("second", 6000, 1500, 0); });
        QCOMPARE(second.place, QRect(centre(QSize(200, 60)), QSize(400, 100)));
        SeenNote third;
        note.WhenShown(third, [&note] { note.reject(); });
        QVERIFY(!note.PopUpYesNoCenterScreen("third", 1500, 450, 0).has_value());
        QCOMPARE(third.place, QRect(centre(QSize(400, 100)), QSize(100, 30)));
    }

    void YesNoAlwaysAnswersFalse() {
        Note note;
        for (bool answer : {false, true}) {
            const SeenNote seen =
                note.Press([&] { note.PopUpYesNo("Really?", 1500, 450, 0, 300, 600, answer); });
            QCOMPARE(seen.place, QRect(40, 20, 100, 30));
            QVERIFY(!answer);
        }
    }

    void InFormStandsAtAnOffsetFromTheWindow() {
        QWidget window;
        window.setGeometry(200, 100, 300, 200);
        window.show();
        const QPoint corner = window.frameGeometry().topLeft();
        Note note;
        const SeenNote seen = note.Press([&] { note.PopUpInForm(window, "here", 1500, 450, 0, 300, 600); });
        QCOMPARE(seen.place, QRect(corner + QPoint(40, 20), QSize(100, 30)));
    }

    void DeliberatelyInFormLeavesTheMessageItsHeight() {
        QWidget window;
        Note note;
        note.Press([&note] { note.PopUp("tall", 1500, 900, 0, 0, 0); });
        const SeenNote seen = note.Press([&] { note.PopUpInForm(window, "wide", 3000, 450, 0, 0, 0); });
        QCOMPARE(seen.place.size(), QSize(200, 30));
        QCOMPARE(seen.message_size, QSize(200, 60));
    }

    void StaysOnTheScreenAndShowsTheWholeMessage() {
        Note note;
        const QRect screen = note.screen()->availableGeometry();
        const SeenNote seen = note.Press([&] {
            note.PopUp("A message that needs more room than it was given", 15, 15, 0,
                       PixelsToTwips(screen.bottom()), PixelsToTwips(screen.right()));
        });
        QVERIFY(screen.contains(seen.place));
        QVERIFY(seen.place.width() >= note.Message().sizeHint().width());
        QVERIFY(seen.place.height() >= note.Message().sizeHint().height());
    }

    void TakesItsTextAsItStands() {
        Note note;
        note.Press([&note] { note.PopUp("<b>&</b> \u00E4", 1500, 300, 0, 0, 0); });
        QCOMPARE(note.Message().textFormat(), Qt::PlainText);
        QCOMPARE(note.Message().text(), QStringLiteral("<b>&</b> \u00E4"));
        QVERIFY(!note.testAttribute(Qt::WA_QuitOnClose));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmPopUpTest)
#include "frmPopUpTest.moc"
