// The native pop-up menus that are open now, as a screen reader sees them: from the menu windows to
// their menus and rows. A row that its owner draws gives its label through the record in its item
// data, which begins with the published MSAAMENUINFO. Called on the main thread, which answers also
// while it stands in a menu's own loop.
#pragma once

#include "devhost/core/base/json.h"
#include "ground/plain_types.h"

namespace devhost {

// {"open","rows":[{"label","text","id","enabled","checked","separator","rect","rows"}]}. `label` is
// the row's text as it was given; `text` is what a user reads of it, without mnemonic and without
// what stands behind a tab. `rect` is null for what can't be seen, also for rows of a sub-menu that
// is not open; `rows` is there for a row with a sub-menu. The outermost menu counts.
Json DescribeLiveMenus(DWORD thread);

bool IsPopupMenuOpen(DWORD thread);

}  // namespace devhost
