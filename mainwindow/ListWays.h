#pragma once

// The ways from the main window into the list window: what is pasted into a date box or dropped on the
// window, the menus of the date boxes, Ctrl+L. Tells the list window of every change that its rows depend on.

#include <QObject>

#include "mainwindow/MainControls.h"
#include "mainwindow/SecondaryWindows.h"
#include "windows/list/lines/ListRow.h"

namespace calvoro {

class ListWays : public QObject {
    Q_OBJECT

public:
    /// window  owns this object, and takes what is dropped on it from now on
    ListWays(QWidget* window, const MainControls& controls, SecondaryWindows& windows);

    /// The captions in the menus of the date boxes.
    void SetLanguageDependentText(LanguageNumber language);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectBoxes();
    void FollowOptions();
    ListSide SideWithTheFocus() const;

    const MainControls& controls_;
    SecondaryWindows& windows_;
};

}  // namespace calvoro
