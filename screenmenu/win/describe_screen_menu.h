// The current state of the screen menu as the JSON object "screenmenu" of the module's diagnostic
// export. Read from live windows: text, visibility, rectangles.
#pragma once

#include <string>

std::string DescribeScreenMenu();
