#include "tests/monkey/World.h"

#include <QFile>
#include <limits>

#include "tests/windows/list/ListJobs.h"
#include "windows/frmList.h"

namespace calvoro::monkey {

World::World() {
    MakeFiles();
}

void World::MakeFiles() const {
    const auto make = [this](const char* name, const QByteArray& contents) {
        QFile file(PathOf(name));
        if (!file.open(QFile::WriteOnly)) qFatal("cannot write %s", name);
        file.write(contents);
    };
    make("dates.txt", "2024-02-29\r\n1582-10-15\r\n\r\nx\r\n-4712-01-01\r\n");
    make("table.csv", "name,date\r\n\"a, b\",2024-02-29\r\nc,2000-W01-1\r\nd,\"x\"\r\n");
    make("numbers.tsv", QByteArray("2460370\t1\n2.460.371\t2\n").repeated(300));
    make("empty.txt", "");
    make("bytes.bin", QByteArray("\x00\xFF\xC3\x28\n\x00", 6));
    QDir(files_.path()).mkdir(QStringLiteral("folder"));
}

void World::Start(const Settings& settings) {
    startedWith = settings;
    main.StartWith(settings);
    Prepare();
}

void World::StartWithFile() {
    startedWith = ReadSettingsFile(main.SettingsPath()).value_or(Settings());
    main.Start();
    Prepare();
}

void World::Prepare() {
    quitWasClicked_ = false;
    QObject::connect(&Get<QAbstractButton>("cmdQuit"), &QAbstractButton::clicked,
                     [this] { quitWasClicked_ = true; });
    // The clock strikes as an event, not when time has passed.
    Get<QTimer>("Clock").setInterval(std::numeric_limits<int>::max());
    weekStart = startedWith.monthWeekStart;
    monthCalendar = startedWith.monthCalendar;
}

void World::End() {
    main.Quit();
    startedAnew = true;
}

void World::Forget() {
    typedInto.clear();
    startedAnew = false;
    wasReset = false;
    brokenInvariant.clear();
    fault.clear();
    told.clear();
    main.fake.boxes.shown.clear();
    main.fake.boxes.asked.clear();
    main.fake.boxes.answers.clear();
    main.fake.clipboard.calls.clear();
    main.fake.web.opened.clear();
    main.fake.web.results.clear();
}

void World::Settle() {
    QCoreApplication::processEvents();
    // The second click of two may meet it, where the first has moved the page: that ends the program, too.
    if (quitWasClicked_) {
        End();
        StartWithFile();
    }
    if (const auto* list = Open<frmList>()) WaitForJobs(*list);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Without a screen a window that was over the whole of it comes back without its size.
    for (QWidget* window : OpenWindows()) {
        const QSize least = window->minimumSize();
        if (window->width() < least.width() || window->height() < least.height()) window->resize(least);
    }
    // What a window manager does when the active window has gone; without a screen it may stay active unseen.
    const QWidget* const active = QApplication::activeWindow();
    const bool isGone = active == nullptr || !active->isVisible();
    if (isGone && QApplication::activePopupWidget() == nullptr && main.window != nullptr) {
        QWidget* const modal = QApplication::activeModalWidget();
        (modal != nullptr ? modal : main.window.get())->activateWindow();
    }
    QCoreApplication::processEvents();
}

QWidget* World::Active() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : main.window.get();
}

QList<QWidget*> World::OpenWindows() const {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName().startsWith(QLatin1String("frm"))) {
            windows.push_back(window);
        }
    }
    // The toolkit keeps them in no order.
    std::sort(windows.begin(), windows.end(), [](const QWidget* one, const QWidget* other) {
        return one->objectName() < other->objectName();
    });
    return windows;
}

QString NameOf(const QWidget& control) {
    const auto own = [](const QWidget& widget) {
        return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                             : widget.objectName();
    };
    return control.isWindow() ? own(control) : own(*control.window()) + QLatin1Char('.') + own(control);
}

}  // namespace calvoro::monkey
