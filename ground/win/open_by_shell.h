// Opens a document or an address with what the user has for it.
#pragma once

#include "afxwin.h"

namespace qvx {

// False when the shell refused; its results up to 32 are errors.
inline bool OpenByShell(HWND owner, const wchar_t* target) {
  const HINSTANCE result = ::ShellExecuteW(owner, L"open", target, nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > 32;
}

}  // namespace qvx
