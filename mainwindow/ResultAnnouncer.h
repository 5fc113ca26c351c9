#pragma once

// Tells a screen reader what a computation has brought, while the focus is elsewhere.

#include <QWidget>
#include <string_view>

namespace calvoro {

/// Has no size on the window; a screen reader meets it as a notification.
class ResultAnnouncer : public QWidget {
    Q_OBJECT

public:
    explicit ResultAnnouncer(QWidget* window);

    /// result  a result line; blanks and line breaks around it do not matter
    void Announce(std::string_view result);
};

}  // namespace calvoro
