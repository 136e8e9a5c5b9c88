// The drawings of the last run that the user wants to have opened again.
#pragma once

// Hands those of g_sRecentFiles that are found to the context window and empties the list. Outside
// the application context none is opened, and the list is emptied all the same.
void ReopenRecentFiles();
