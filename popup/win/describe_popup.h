// The pop-up menu shown at present as the JSON object "popup" of the module's diagnostic export.
// Read from the menu windows of the main thread, including pop-ups of panes and of the editor; the
// menus of the frame's menu bar are excluded.
#pragma once

#include <string>

std::string DescribePopup();
