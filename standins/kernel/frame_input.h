// Whether the host's frame takes input: a modal dialog disables it. A machine without windows has
// no dialogs.
#pragma once

bool FrameTakesInput();
