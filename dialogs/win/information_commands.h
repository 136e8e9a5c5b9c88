// The commands that show information to the user, and the tip of the day at the module's start. All
// run on the main thread while the host's frame exists; the dialogs are modal over it.
#pragma once

void ShowAbout();        // TAbout
void ShowCurrentTips();  // TCurTips: always shows the dialog
void OpenHelp();         // THelp
void ReportBug();        // TReportBug

// Shows the tips unless the user turned them off. Moves on by one tip in either case.
void ShowTipsAtStart();
