#pragma once

// The help window: one fixed text in the language of the interface. Closing hides it.

#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include "text/Texts.h"
#include "windows/HelpText.h"

namespace calvoro {

class frmHelp : public QWidget {
    Q_OBJECT

public:
    frmHelp(const Texts& texts, const WebAddresses& addresses, QWidget& mainWindow);

    /// Shows the window, near the main window's lower right corner the first time, or brings it back when
    /// it is minimised or covered.
    void ShowHelp();

    /// Sets title, caption and text in the language of the interface.
    void SetLanguageDependentText();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void OnActivated();
    void ShowText(const std::string& text);
    void ArrangeControls(int heightAround);
    void PlaceCloseButton();

    const Texts& texts_;
    QWidget& mainWindow_;
    HelpTexts helpText_;
    bool placed_ = false;

    QPlainTextEdit* txbMsg;
    QPushButton* cmdClose;
};

}  // namespace calvoro
