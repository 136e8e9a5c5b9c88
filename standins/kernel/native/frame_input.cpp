#include "kernel/frame_input.h"

bool FrameTakesInput() { return true; }
