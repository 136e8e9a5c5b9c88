// The tabs section of the shell state as JSON text in UTF-8.
#pragma once

#include <string>

#include "doctabs/tab_strip.h"

// `screenLeft`: of the strip's client area, so that edges are screen pixels.
std::string TabsToJson(const TabStrip& strip, bool visible, int screenLeft);
