#include "platform/qt/SystemDigitGrouping.h"

#include <QTest>

namespace calvoro {

/// Run once for each locale in CMakeLists.txt, which also says what it must give: Qt reads the system's
/// settings once in a process.
class SystemDigitGroupingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void IsThatOfTheSystem() {
        QVERIFY2(qEnvironmentVariableIsSet("EXPECTED_GROUPING"), "the expected character must be given");
        QCOMPARE(QString::fromStdString(SystemDigitGrouping()), qEnvironmentVariable("EXPECTED_GROUPING"));
    }
};

}  // namespace calvoro

QTEST_GUILESS_MAIN(calvoro::SystemDigitGroupingTest)
#include "SystemDigitGroupingTest.moc"
