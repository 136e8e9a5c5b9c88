// The recent commands in the user's settings: written from the last entry to the first, and added
// in text order when read, which restores the order.
#pragma once

#include "menu/menu_stack.h"

void SaveRecentCommands(TMenuStack& recent);
void LoadRecentCommands(TMenuStack& recent);
