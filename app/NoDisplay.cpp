#include "app/NoDisplay.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace calvoro {

namespace {

constexpr const char* kSentence =
    "calvoro: there is no display to show the window on; without one, `./run convert` and `./run compute`"
    " (installed: `calvoro-cli convert` and `calvoro-cli compute`) do the same work.\n";

void Report(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        std::fputs(kSentence, stderr);
        std::_Exit(EXIT_FAILURE);  // returning would abort, and there is nothing yet to be tidied up
    }
    // What the window system's plugin says about a display that it cannot use is in the sentence.
    if (context.category != nullptr && std::strncmp(context.category, "qt.qpa.", 7) == 0) return;
    std::fprintf(stderr, "%s\n", qFormatLogMessage(type, context, message).toLocal8Bit().constData());
}

}  // namespace

NoDisplayGuard::NoDisplayGuard() : previous_(qInstallMessageHandler(Report)) {}

NoDisplayGuard::~NoDisplayGuard() {
    qInstallMessageHandler(previous_);
}

}  // namespace calvoro
