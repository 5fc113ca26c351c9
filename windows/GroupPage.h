#pragma once

#include <QGroupBox>
#include <QVBoxLayout>

#include "windows/AccessibleRole.h"

namespace calvoro {

/// The page that fills a titled frame and on which its options belong. For assistive tools it is the group,
/// and the frame is none: the toolkit tells them that a group box is the label of what stands in it, and a
/// reader would say its name again with each option.
inline QWidget* GroupPage(QGroupBox& frame) {
    auto* page = new QWidget(&frame);
    SetAccessibleRole(frame, QAccessible::Client);
    SetAccessibleRole(*page, QAccessible::Grouping);
    (new QVBoxLayout(&frame))->addWidget(page);
    return page;
}

}  // namespace calvoro
