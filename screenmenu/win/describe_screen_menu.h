// The screen menu as it stands on the screen at this moment, as the JSON object that the module's
// diagnostic export shows under "screenmenu". Taken from live windows: text, visibility, places.
#pragma once

#include <string>

std::string DescribeScreenMenu();
