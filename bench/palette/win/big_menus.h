// Menus for the palette measurements, built in memory: reading menus is measured elsewhere.
#pragma once

#include <memory>

#include "menu/menu_model.h"

namespace bench {

// One level of plain lines.
std::unique_ptr<TMenuBar> FlatMenu(int rows);
// Headers with plain lines below them, `rows` in all; the last group gets the remainder.
std::unique_ptr<TMenuBar> FoldingMenu(int headers, int rows);

}  // namespace bench
