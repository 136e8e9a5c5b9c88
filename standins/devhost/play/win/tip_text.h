// The tool tip that the program shows.
#pragma once

#include <string>

namespace devhost {

// The text of the visible tool tip control of the calling thread; empty if none is visible.
std::wstring ShownTipText();

}  // namespace devhost
