// The commands that give the user information, and the tip of the day at the module's start. All
// run on the main thread with the host's frame up; the dialogs are modal over it.
#pragma once

void ShowAbout();        // TAbout
void ShowCurrentTips();  // TCurTips: always shows the dialog
void OpenHelp();         // THelp
void ReportBug();        // TReportBug

// Shows the tips unless the user turned them off. Even then the next tip is taken: the position
// moves on by one at each start.
void ShowTipsAtStart();
