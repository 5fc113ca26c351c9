// The columns of the month and of the enlarged output line up, whatever the theme names as its fixed font.

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QTest>

#include "windows/FixedPitchBox.h"

namespace calvoro {

class FixedPitchFontTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void IsFixedWhateverTheThemeNames_data() {
        QTest::addColumn<QStringList>("families");
        QTest::newRow("a fixed-pitch family") << QStringList{QStringLiteral("DejaVu Sans Mono")};
        QTest::newRow("a family with narrow and wide letters") << QStringList{QStringLiteral("DejaVu Sans")};
        QTest::newRow("a family that is not there") << QStringList{QStringLiteral("Nowhere Sans")};
        QTest::newRow("none") << QStringList{};
    }
    void IsFixedWhateverTheThemeNames() {
        QFETCH(const QStringList, families);
        const QFont font = FixedPitchFont(families);
        QVERIFY2(QFontInfo(font).fixedPitch(), qPrintable(QFontInfo(font).family()));
        const QFontMetrics metrics(font);
        QCOMPARE(metrics.horizontalAdvance(QStringLiteral("iiii")),
                 metrics.horizontalAdvance(QStringLiteral("WWWW")));
    }

    void TheThemesFamilyIsTakenWhereItFits() {
        QCOMPARE(QFontInfo(FixedPitchFont({QStringLiteral("DejaVu Sans Mono")})).family(),
                 QStringLiteral("DejaVu Sans Mono"));
    }

    void SizeAndWeightStayThoseAround() {
        QWidget window;
        QFont font = window.font();
        font.setPointSizeF(17);
        font.setBold(true);
        window.setFont(font);
        QWidget box(&window);
        UseFixedPitchFont(box);
        QCOMPARE(box.font().pointSizeF(), 17.0);
        QVERIFY(box.font().bold());
        QVERIFY(QFontInfo(box.font()).fixedPitch());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::FixedPitchFontTest)
#include "FixedPitchFontTest.moc"
