// Menus of the sizes that the palette is measured with. Made in memory: reading menus is measured
// elsewhere.
#pragma once

#include <memory>

#include "menu/menu_model.h"

namespace bench {

// One level of plain lines.
std::unique_ptr<TMenuBar> FlatMenu(int rows);
// Headers with plain lines below them, `rows` in all; the last group takes what is left over.
std::unique_ptr<TMenuBar> FoldingMenu(int headers, int rows);

}  // namespace bench
