// What the editor offers beside its C functions: the prompt, the groups of menus, viewports.
#pragma once

#include "accmd.h"

void acedPostCommandPrompt();  // the prompt again, after printing outside a command
bool acedIsMenuGroupLoaded(const ACHAR* group);

// The tiled viewports of the current drawing to the records "*Active" of its viewport table, and
// back to the screen: eInvalidInput unless the records fill the window without overlap.
Acad::ErrorStatus acedVports2VportTableRecords();
Acad::ErrorStatus acedVportTableRecords2Vports();
