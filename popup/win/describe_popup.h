// The pop-up menu that is on the screen at this moment, as the JSON object that the module's
// diagnostic export shows under "popup". Taken from the live menu windows of the main thread, those
// of panes and editor among them; the menus of the frame's menu bar are left out.
#pragma once

#include <string>

std::string DescribePopup();
