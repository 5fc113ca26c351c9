#pragma once

#include <QScrollArea>

namespace calvoro {

/// Makes a scroll area answer an assistive tool that asks for a scroll bar which has just gone with "none".
/// The toolkit's own answer reads behind its list of what is shown, which ends the program.
void MakeAccessibleSafely(QScrollArea& area);

}  // namespace calvoro
