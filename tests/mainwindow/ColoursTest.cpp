// Colours are the theme's alone, also when it changes while the program runs, and links can be read in all
// of them.

#include "tests/mainwindow/MainWindowFixture.h"
#include "windows/Contrast.h"

using namespace calvoro;

class ColoursTest : public QObject {
    Q_OBJECT

private:
    QPalette own_;

    static QPalette Theme(const QColor& back, const QColor& text, const QColor& link) {
        QPalette palette;
        for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            palette.setColor(role, back);
        }
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(role, text);
        }
        palette.setColor(QPalette::Link, link);
        return palette;
    }

    static QColor LinkColour(const MainWindowFixture& main, const char* name) {
        const QLabel& link = main.Get<QLabel>(name);
        return link.palette().color(link.foregroundRole());
    }

private Q_SLOTS:
    void initTestCase() { own_ = QApplication::palette(); }
    void cleanup() { QApplication::setPalette(own_); }

    void LinksCanBeReadInEveryTheme_data() {
        QTest::addColumn<QPalette>("theme");
        QTest::addColumn<bool>("inItsLinkColour");
        QTest::newRow("the toolkit's") << own_ << true;
        QTest::newRow("light") << Theme(Qt::white, Qt::black, QColor(0, 0, 0xEE)) << true;
        QTest::newRow("dark") << Theme(QColor(42, 46, 50), Qt::white, QColor(120, 180, 255)) << true;
        QTest::newRow("dark, with the links of a light one")
            << Theme(QColor(42, 46, 50), Qt::white, QColor(0, 0, 0xFF)) << false;
        QTest::newRow("high contrast") << Theme(Qt::black, Qt::white, Qt::yellow) << true;
        QTest::newRow("high contrast, links forgotten")
            << Theme(Qt::black, Qt::white, QColor(0, 0, 0xFF)) << false;
    }
    void LinksCanBeReadInEveryTheme() {
        QFETCH(const QPalette, theme);
        QFETCH(const bool, inItsLinkColour);
        MainWindowFixture main;
        main.Start();
        QApplication::setPalette(theme);
        QCoreApplication::processEvents();
        for (const char* name : {"lblOnlineDocumentation", "lblVantorelSystems"}) {
            const QColor colour = LinkColour(main, name);
            QVERIFY(Contrast(colour, theme.color(QPalette::Window)) >= kLeastContrast);
            QCOMPARE(colour, theme.color(inItsLinkColour ? QPalette::Link : QPalette::WindowText));
            QVERIFY(main.Get<QLabel>(name).font().underline());
        }
    }

    void LinksComeBackToTheirColour() {
        MainWindowFixture main;
        main.Start();
        const QColor before = LinkColour(main, "lblOnlineDocumentation");
        QApplication::setPalette(Theme(Qt::black, Qt::white, QColor(0, 0, 0xFF)));
        QCoreApplication::processEvents();
        QCOMPARE(LinkColour(main, "lblOnlineDocumentation"), QColor(Qt::white));
        QApplication::setPalette(own_);
        QCoreApplication::processEvents();
        QCOMPARE(LinkColour(main, "lblOnlineDocumentation"), before);
    }

    void NoControlHasColoursOfItsOwn() {
        MainWindowFixture main;
        main.Start();
        for (const char* opener : {"cmdDisplayMonth", "cmdHelp"}) main.Button(opener).click();
        QVERIFY(qApp->styleSheet().isEmpty());
        int checked = 0;
        for (const QWidget* control : QApplication::allWidgets()) {
            ++checked;
            QVERIFY2(!control->testAttribute(Qt::WA_SetPalette), qPrintable(control->objectName()));
            QVERIFY2(control->styleSheet().isEmpty(), qPrintable(control->objectName()));
        }
        QVERIFY(checked > 120);
    }
};

QTEST_MAIN(ColoursTest)
#include "ColoursTest.moc"
