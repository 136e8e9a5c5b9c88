// CString::LoadString. A string resource has no terminator: the loader returns its length.
#ifdef _WIN32
#include "afx.h"

HINSTANCE AFXAPI AfxGetResourceHandle();  // afxwin.h

template <class Char>
BOOL CStringT<Char>::LoadString(HINSTANCE module, UINT id) {
  const wchar_t* text = nullptr;
  const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
  if (length <= 0) return FALSE;
  *this = CStringT(text, length);
  return TRUE;
}

template <class Char>
BOOL CStringT<Char>::LoadString(UINT id) {
  return LoadString(AfxGetResourceHandle(), id);
}

template BOOL CStringT<wchar_t>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<wchar_t>::LoadString(UINT);
template BOOL CStringT<char>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<char>::LoadString(UINT);
#endif
