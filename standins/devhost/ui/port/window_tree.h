// The tree of all windows of a thread, and the button with a label. For play scripts and dumps.
#pragma once

#include <string>

#include "devhost/core/base/json.h"
#include "ground/plain_types.h"

namespace devhost {

// {"class","text","id","visible","enabled","rect","children":[...]} for each top-level window.
Json DescribeWindowsOf(DWORD thread);

// The visible and enabled push button with this label, ignoring mnemonics; null: none.
HWND FindButton(DWORD thread, const std::wstring& label);

// "确定(&O)" and "&OK" without the mnemonic.
std::wstring WithoutMnemonic(const std::wstring& text);

}  // namespace devhost
