// Opens a document or an address with the user's program for it.
#pragma once

#include "afxwin.h"

namespace qvx {

// False on failure: results of the shell up to 32 are errors.
inline bool OpenByShell(HWND owner, const wchar_t* target) {
  const HINSTANCE result = ::ShellExecuteW(owner, L"open", target, nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > 32;
}

}  // namespace qvx
