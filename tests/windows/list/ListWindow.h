#pragma once

// A list window whose lines are whole numbers, and the hands of a user.

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QStringList>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>

#include "tests/support/FakePlatform.h"
#include "tests/windows/WindowTesting.h"
#include "tests/windows/list/ListJobs.h"
#include "tests/windows/list/ListTesting.h"
#include "windows/frmList.h"

namespace calvoro {

class NumberSource : public ListRowSource {
public:
    bool weekdays = true;
    mutable ListSide side = ListSide::FirstDates;  // last asked for

    std::shared_ptr<ListRowMaker> Snapshot(ListSide asked) const override {
        side = asked;
        auto rows = std::make_shared<NumberRows>();
        rows->weekdays = weekdays;
        return rows;
    }
};

class ListWindow {
public:
    FakePlatform fake;
    Texts texts;
    NumberSource rows;
    QWidget mainWindow;
    frmList window{fake.platform, texts, rows, mainWindow};
    QTemporaryDir folder;

    void Open() {
        window.ShowList(ListSide::FirstDates);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void Give(const QString& text) {
        window.Show({text, QString()}, ListSide::FirstDates);
        WaitForJobs(window);
    }
    void GiveFile(const QString& path) {
        window.Show({QString(), path}, ListSide::FirstDates);
        WaitForJobs(window);
    }
    /// Clicks on a button and waits for what it does.
    void Do(const char* button) {
        ClickOn(Button(button));
        WaitForJobs(window);
    }

    QString Write(const QString& name, const QByteArray& content) const {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("no file");
        return file.fileName();
    }
    QByteArray Content(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    QTableView& Table() const { return Control<QTableView>(window, "tblList"); }
    QAbstractItemModel& Model() const { return *Table().model(); }
    QAbstractButton& Button(const char* name) const { return Control<QAbstractButton>(window, name); }
    QString State() const { return Control<QLabel>(window, "lblState").text(); }

    QString Cell(int row, int column) const { return Model().index(row, column).data().toString(); }
    /// The cells of a column from top to bottom.
    QStringList Column(int column) const {
        QStringList cells;
        for (int row = 0; row < Model().rowCount(); ++row) cells.push_back(Cell(row, column));
        return cells;
    }
    /// The cells of a row that are not hidden.
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < Model().columnCount(); ++column) {
            if (!Table().isColumnHidden(column)) cells.push_back(Cell(row, column));
        }
        return cells;
    }
    QStringList Heads() const {
        QStringList heads;
        for (int column = 0; column < Model().columnCount(); ++column) {
            if (!Table().isColumnHidden(column)) {
                heads.push_back(Model().headerData(column, Qt::Horizontal).toString());
            }
        }
        return heads;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.focusWidget(), key, modifiers);
        WaitForJobs(window);
    }

    std::vector<ShownMessage>& Shown() { return fake.boxes.shown; }
};

/// The toolkit's dialogs for files remember things in the user's folder; here it is another one. To be called
/// before the first dialog.
inline void UseOwnConfigurationFolder() {
    static const QTemporaryDir kFolder;
    qputenv("XDG_CONFIG_HOME", kFolder.path().toUtf8());
}

/// Types a name into the dialog for files that comes up, and accepts it as soon as that is possible.
inline void AnswerFileDialog(const QString& name, const std::function<void(QWidget&)>& before = {}) {
    QTimer::singleShot(5, qApp, [=] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible()) {
            AnswerFileDialog(name, before);
            return;
        }
        if (before) before(*dialog);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) != QDialogButtonBox::AcceptRole) continue;
            if (button->isEnabled()) {
                button->click();
            } else {
                AnswerFileDialog(name);
            }
        }
    });
}

}  // namespace calvoro
