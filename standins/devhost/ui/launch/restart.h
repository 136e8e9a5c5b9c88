// Starting the program once more in the middle of a play, as a user does who closes it and comes
// back: a process of its own with the same command line, folder and registry. How many starts there
// have been is told through the environment, so that the command line really is the same.
#pragma once

namespace devhost {

int RestartsBefore();  // of this process; 0 for one that a user started

// Called when all of this start is down. Waits for the next one and gives its exit code, or 1 with
// a line on the error stream when it can't be started.
int StartAgain();

}  // namespace devhost
