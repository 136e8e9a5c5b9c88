// Restarts the program during a play, as a user does: a new process with the same command line,
// folder and registry. The number of restarts is passed in the environment, so that the command
// line is the same.
#pragma once

namespace devhost {

int RestartCount();  // restarts before this process; 0 for the first

// Call after everything is released. Waits for the new process and returns its exit code, or 1 with
// a message on the error stream if it cannot be started.
int RestartProgram();

}  // namespace devhost
