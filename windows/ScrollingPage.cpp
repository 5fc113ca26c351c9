#include "windows/ScrollingPage.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include "windows/AccessibleScrolling.h"
#include "windows/Placement.h"

namespace calvoro {
namespace {

// A page with a text that is broken into lines is asked for its height at a width, and would tell the one
// that it likes best: the window would scroll although a table or a text box could give way.
class PageThatGivesWay : public QWidget {
public:
    int heightForWidth(int width) const override {
        if (layout() == nullptr || !layout()->hasHeightForWidth()) return QWidget::heightForWidth(width);
        return layout()->totalMinimumHeightForWidth(width);
    }
};

}  // namespace

ScrollingPage::ScrollingPage(QWidget& window) : QScrollArea(&window) {
    setObjectName(QStringLiteral("scrollingPage"));
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    MakeAccessibleSafely(*this);
    setWidgetResizable(true);
    setWidget(new PageThatGivesWay);
    auto* fill = new QVBoxLayout(&window);
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, const QWidget* focused) { ShowFocus(focused); });
}

// A control that goes with the page may have the focus, and says so after what is a ScrollingPage has gone.
ScrollingPage::~ScrollingPage() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrollingPage::sizeHint() const {
    return AsRoomAllows(Page().sizeHint());
}

QSize ScrollingPage::minimumSizeHint() const {
    const QSize least = Page().minimumSizeHint();
    // Narrower than it would like only to be spared a scroll bar.
    const int width = Page().sizeHint().width();
    return AsRoomAllows(width <= RoomOnScreen(*window()).width() ? QSize(width, least.height()) : least);
}

bool ScrollingPage::eventFilter(QObject* watched, QEvent* event) {
    const bool isLaidOut = watched == widget() && Page().layout() != nullptr &&
                           (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize);
    const bool wasInSight = focusIsInSight_;
    if (isLaidOut && event->type() == QEvent::LayoutRequest) {
        // The page needs another size: so does the window. The layouts inside the page's own learn first.
        Page().layout()->activate();
        updateGeometry();
    }
    const bool isDone = QScrollArea::eventFilter(watched, event);
    // Other words may have moved what is worked with; what the user scrolled away stays there.
    if (isLaidOut && wasInSight) ShowFocus(Page().focusWidget());
    return isDone;
}

void ScrollingPage::scrollContentsBy(int dx, int dy) {
    QScrollArea::scrollContentsBy(dx, dy);
    LookForFocus();
}

// What has the focus is shown in one way, however it got it: by ShowFocus, and not by the toolkit's area too.
bool ScrollingPage::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next);  // NOLINT(bugprone-parent-virtual-call): for that reason
}

void ScrollingPage::ShowFocus(const QWidget* focused) {
    if (focused == nullptr || !Page().isAncestorOf(focused)) return;
    // It would move away under a click, which counts where the button is let go above it. What was scrolled
    // away may still be taken for what is under the mouse.
    const bool isClicked = QGuiApplication::mouseButtons() != Qt::NoButton && focused->underMouse();
    if (isClicked && !focused->visibleRegion().isEmpty()) return LookForFocus();
    const QRect place(focused->mapTo(&Page(), QPoint()), focused->size());
    constexpr int kMargin = 12;  // pixels of what stands around it
    // Its far corner first, so that of a control larger than the window the beginning is seen.
    ensureVisible(place.right(), place.bottom(), kMargin, kMargin);
    ensureVisible(place.left(), place.top(), kMargin, kMargin);
    LookForFocus();
}

void ScrollingPage::LookForFocus() {
    const QWidget* const focused = Page().focusWidget();
    focusIsInSight_ = focused != nullptr && !focused->visibleRegion().isEmpty();
}

QSize ScrollingPage::AsRoomAllows(QSize size) const {
    const QSize room = RoomOnScreen(*window());
    // What is cut off in one direction is reached by a scroll bar, which takes its room in the other.
    if (size.height() > room.height()) size.rwidth() += verticalScrollBar()->sizeHint().width();
    if (size.width() > room.width()) size.rheight() += horizontalScrollBar()->sizeHint().height();
    return size.boundedTo(room);
}

}  // namespace calvoro
