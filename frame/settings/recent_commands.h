// The recent commands in the user's settings: written from the last entry to the first, and added
// in text order when read, which restores the order.
#pragma once

void SaveRecentCommands();  // of the menu in force; nothing is written without one
void LoadRecentCommands();
