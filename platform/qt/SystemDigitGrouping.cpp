#include "platform/qt/SystemDigitGrouping.h"

#include <QLocale>
#include <QString>

namespace calvoro {

std::string SystemDigitGrouping() {
    const QString separator = QLocale::system().groupSeparator();
    const bool unusable = separator.isEmpty() || separator == u"-" || separator.front().isDigit();
    return unusable ? "," : separator.toStdString();
}

}  // namespace calvoro
