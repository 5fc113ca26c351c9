#pragma once

// Tells a screen reader what has come up while the focus is elsewhere: a result, another month.

#include <QWidget>
#include <string_view>

namespace calvoro {

/// Has no size on the window; a screen reader meets it as a notification.
class Announcer : public QWidget {
public:
    explicit Announcer(QWidget* window);

    /// text  blanks and line breaks around it do not matter
    void Announce(std::string_view text);
};

}  // namespace calvoro
