// A message box of the module. No window header.
#pragma once

namespace qvx {

void ShowMessageBox(const wchar_t* text);

}  // namespace qvx
