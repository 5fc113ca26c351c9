// A list of many lines in the window, and a plain table of the toolkit with the same lines: how long it takes
// until the first rows are painted, until the last ones are, how far the memory grows, and how long copying
// all rows takes. One way a process, so that each begins alike; prints its figures as lines of "name value".
//
//     list_bench plain FILE    list_bench file FILE    list_bench pasted FILE

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QStringList>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "mainwindow/frmMain.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "text/Texts.h"
#include "windows/frmList.h"

namespace {

using namespace calvoro;

/// Memory of the process that is in use, in KiB, or has been at most.
double Memory(const char* name) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(name)) return std::atof(line.c_str() + std::string(name).size() + 1);
    }
    return 0;
}

void Print(const char* name, double value) {
    std::printf("%s %.3f\n", name, value);
    std::fflush(stdout);
}

/// How long an event has had to wait at most.
class LongestWait : public QObject {
public:
    LongestWait() {
        startTimer(0);
        since_.start();
    }
    double Seconds() const { return seconds_; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        seconds_ = std::max(seconds_, static_cast<double>(since_.nsecsElapsed()) / 1e9);
        since_.start();
    }

private:
    QElapsedTimer since_;
    double seconds_ = 0;
};

/// Sees when a table has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QTableView& table) { table.viewport()->installEventFilter(this); }
    bool painted = false;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted = true;
        return false;
    }
};

/// Waits for a paint that begins after the condition holds, and for its end.
void WaitForPaint(PaintWatch& watch, const std::function<bool()>& condition) {
    while (!condition()) QApplication::processEvents();
    watch.painted = false;
    while (!watch.painted) QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

class PlainModel : public QAbstractTableModel {
public:
    QStringList lines;

    void SetLines(QStringList newLines) {
        beginResetModel();
        lines = std::move(newLines);
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(lines[index.row()]) : QVariant();
    }
};

void ScrollToEnd(QTableView& table, PaintWatch& watch) {
    QElapsedTimer timer;
    timer.start();
    watch.painted = false;
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum());
    while (!watch.painted) QApplication::processEvents();
    Print("last_rows", static_cast<double>(timer.nsecsElapsed()) / 1e9);
}

int ShowPlain(const QString& path) {
    QTableView table;
    PlainModel model;
    table.setModel(&model);
    table.resize(1000, 600);
    table.show();
    PaintWatch watch(table);
    QApplication::processEvents();
    const double before = Memory("VmRSS:");
    QElapsedTimer timer;
    timer.start();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return EXIT_FAILURE;
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    model.SetLines(std::move(lines));
    WaitForPaint(watch, [&] { return model.rowCount() > 0; });
    Print("first_rows", static_cast<double>(timer.nsecsElapsed()) / 1e9);
    ScrollToEnd(table, watch);
    Print("memory", Memory("VmHWM:") - before);
    return EXIT_SUCCESS;
}

class NoBoxes : public MessageBoxes {
public:
    void Show(std::string_view prompt, std::string_view /*title*/, MessageIcon /*icon*/) override {
        std::fprintf(stderr, "message: %.*s\n", static_cast<int>(prompt.size()), prompt.data());
        std::exit(EXIT_FAILURE);
    }
    bool AskYesNo(std::string_view /*prompt*/, std::string_view /*title*/) override { return false; }
};
class CountingClipboard : public Clipboard {
public:
    double bytes = 0;
    void Clear() override { bytes = 0; }
    void SetText(std::string_view text) override { bytes = static_cast<double>(text.size()); }
};
class NoWeb : public WebOpener {
public:
    int Open(std::string_view /*address*/, std::string_view /*parameters*/, std::string_view /*directory*/,
             int /*windowState*/, std::function<void(int)> /*failedLater*/) override {
        return 0;
    }
};
class NoPlace : public SettingsPlace {
public:
    std::string BaseFolder() override { return {}; }
};

frmList& OpenList(frmMain& window) {
    for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        if (shortcut->key() == QKeySequence(Qt::CTRL | Qt::Key_L)) Q_EMIT shortcut->activated();
    }
    for (QWidget* shown : QApplication::topLevelWidgets()) {
        if (auto* list = qobject_cast<frmList*>(shown)) return *list;
    }
    std::exit(EXIT_FAILURE);
}

int ShowList(const QString& path, bool pasted) {
    NoBoxes boxes;
    CountingClipboard clipboard;
    const SystemClock clock;
    NoWeb web;
    NoPlace place;
    frmMain window(Platform{boxes, clipboard, clock, web, place}, {}, Texts());
    window.Start();
    window.findChild<QAbstractButton*>(QStringLiteral("optFirstDateIsJC"))->click();
    frmList& list = OpenList(window);
    auto& table = *list.findChild<QTableView*>();
    PaintWatch watch(table);
    if (pasted) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) return EXIT_FAILURE;
        QGuiApplication::clipboard()->setText(QString::fromUtf8(file.readAll()));
    }
    QApplication::processEvents();
    const double before = Memory("VmRSS:");

    const LongestWait wait;
    QElapsedTimer timer;
    timer.start();
    if (pasted) {
        list.ShowClipboard(ListSide::FirstDates);
    } else {
        list.Show({QString(), path}, ListSide::FirstDates);
    }
    WaitForPaint(watch, [&] { return table.model()->rowCount() > 0; });
    Print("first_rows", static_cast<double>(timer.nsecsElapsed()) / 1e9);
    Print("longest_wait", wait.Seconds());
    ScrollToEnd(table, watch);
    const auto* state = list.findChild<QLabel*>(QStringLiteral("lblState"));
    timer.start();
    while (state->text().endsWith(QStringLiteral("so far"))) QApplication::processEvents();
    Print("survey", static_cast<double>(timer.nsecsElapsed()) / 1e9);
    Print("memory", Memory("VmHWM:") - before);
    Print("lines", table.model()->rowCount());

    timer.start();
    list.findChild<QAbstractButton*>(QStringLiteral("cmdCopyAll"))->click();
    while (clipboard.bytes == 0) QApplication::processEvents();
    Print("copy", static_cast<double>(timer.nsecsElapsed()) / 1e9);
    Print("copied_bytes", clipboard.bytes);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) return 2;
    const QString way = arguments[1];
    return way == QStringLiteral("plain") ? ShowPlain(arguments[2])
                                          : ShowList(arguments[2], way == QStringLiteral("pasted"));
}
