#pragma once

// Every caption of the main window in the language of the interface.

#include "datetext/TextOptions.h"
#include "mainwindow/MainControls.h"
#include "text/Texts.h"

namespace calvoro {

/// Sets every caption that depends on the language, with a key of its own for each button and check box,
/// and every accessible name.
void SetCaptions(const MainControls& controls, const Texts& texts);

/// Gives the separator options an example date each in this format.
void SetSeparatorCaptions(const MainControls& controls, DateFormat dateFormat);

/// Gives the ordinal date options an example in this form.
void SetOrdinalCaptions(const MainControls& controls, const Texts& texts, bool hyphen);

/// The two above, as the options stand.
void SetExampleCaptions(const MainControls& controls, const Texts& texts, const TextOptions& options);

}  // namespace calvoro
