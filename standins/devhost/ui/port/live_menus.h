// Describes the open native pop-up menus, as a screen reader sees them: menu windows, menus, rows.
// The label of an owner-drawn row is read from its item data, which begins with the published
// MSAAMENUINFO. Called on the main thread, also inside a menu's loop.
#pragma once

#include "devhost/core/base/json.h"
#include "ground/plain_types.h"

namespace devhost {

// {"open","rows":[{"label","text","id","enabled","checked","separator","rect","rows"}]}, of the
// outermost menu. `label` is the text of the row; `text` is the label without mnemonic and without
// the part after a tab. `rect` is null for rows that are not visible, also those of closed
// sub-menus; only rows with a sub-menu have `rows`.
Json DescribeLiveMenus(DWORD thread);

bool IsPopupMenuOpen(DWORD thread);

}  // namespace devhost
