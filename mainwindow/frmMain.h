#pragma once

// The main window: three input boxes, the options, the output. It owns the state of the whole program and
// wires its controls to the small classes that do the jobs; the computation is behind cmdCompute_Click.

#include <QWidget>
#include <string>

#include "mainwindow/WebAddresses.h"
#include "platform/Platform.h"

namespace calvoro {

class frmMain : public QWidget {
    Q_OBJECT

public:
    /// Builds the window without showing it. The numbered texts must be loaded: one of them names the
    /// folder of the settings file.
    /// platform  must outlive the window
    frmMain(const Platform& platform, WebAddresses addresses);

    /// Captions, title, showing, settings, clock and today's date, in the order in which they depend on
    /// each other. Called once.
    void Start();

    /// Writes the settings, once however often it is called, and ends the program's event loop.
    void QuitAndSave();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void WriteSettings();

    Platform platform_;
    WebAddresses addresses_;
    std::string settingsFilePath_;
    bool saved_ = false;
};

}  // namespace calvoro
