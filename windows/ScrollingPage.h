#pragma once

// What fills a window: its controls on a page that takes the room it needs, and that is scrolled where the
// screen has less. Where there is room enough nothing of it is seen.

#include <QScrollArea>

namespace calvoro {

class ScrollingPage : public QScrollArea {
    Q_OBJECT

public:
    /// Fills the window. Its layout is the window's own, so the window is never made larger than the screen.
    explicit ScrollingPage(QWidget& window);
    ~ScrollingPage() override;

    /// Where the controls and their layout belong.
    QWidget& Page() const { return *widget(); }

    /// The size that the page would like, and the least that it can do with, as far as the screen has room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void ShowFocus(const QWidget* focused);
    void LookForFocus();
    QSize AsRoomAllows(QSize size) const;

    bool focusIsInSight_ = false;  // since it was last moved or scrolled: a layout tells when it is done only
};

}  // namespace calvoro
