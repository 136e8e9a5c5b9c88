// What the editor offers beside its C functions: the prompt, the groups of menus.
#pragma once

#include "accmd.h"

void acedPostCommandPrompt();  // the prompt again, after printing outside a command
bool acedIsMenuGroupLoaded(const ACHAR* group);
