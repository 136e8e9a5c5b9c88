// Opens a document or an address with the user's program for it.
#pragma once

#include "afxwin.h"

#include <cwchar>

namespace qvx {

// False on failure: results of the shell up to 32 are errors. Longer targets than Windows allows
// for addresses (INTERNET_MAX_URL_LENGTH) fail without a call: the shell library is known to crash.
inline bool OpenByShell(HWND owner, const wchar_t* target) {
  constexpr std::size_t kLongestTarget = 2083;
  if (std::wcslen(target) > kLongestTarget) return false;
  const HINSTANCE result = ::ShellExecuteW(owner, L"open", target, nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > 32;
}

}  // namespace qvx
