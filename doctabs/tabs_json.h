// The tabs section of the shell state as JSON text in UTF-8.
#pragma once

#include <string>

#include "doctabs/tab_strip.h"

// `screenClient`: the strip's client area in screen pixels, as are the edges of the tabs.
std::string TabsToJson(const TabStrip& strip, bool visible, const RECT& screenClient);
