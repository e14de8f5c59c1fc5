// How the desktop program comes up, step by step.
#pragma once

#include "shell/Application.h"

namespace zg {

class frmMain;

// Everything that has to be settled ahead of the main window: the symbol font, language, units,
// filters, the database. Each step may fail by itself, with a message; the program goes on.
void Initialise(Application& app);

// The splash window, until it closes by itself or by a click; then the country list is loaded.
void ShowSplash(Application& app, frmMain& window);

}  // namespace zg
