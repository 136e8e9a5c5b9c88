// The drawings of the last run, opened again at the start.
#pragma once

// Passes the files of g_sRecentFiles that are found to the context window and empties the list.
// Outside the application context none is opened; the list is emptied all the same.
void ReopenRecentFiles();
