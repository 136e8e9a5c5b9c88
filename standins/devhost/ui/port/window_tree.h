// Looking at the windows of the process from outside: the tree of all of them, and the button that
// carries a label. For play scripts and their dumps.
#pragma once

#include <string>

#include "devhost/core/base/json.h"
#include "ground/plain_types.h"

namespace devhost {

// {"class","text","id","visible","enabled","rect","children":[...]} for each top-level window.
Json DescribeWindowsOf(DWORD thread);

// The visible, enabled push button with this label; a mnemonic in the window's text does not count.
HWND FindButton(DWORD thread, const std::wstring& label);

std::wstring WithoutMnemonic(
    const std::wstring& text);  // "确定(&O)" and "&OK" as a user reads them

}  // namespace devhost
