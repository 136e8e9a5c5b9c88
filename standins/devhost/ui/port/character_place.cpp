// Characters of an edit control; see the header.
#include "devhost/ui/port/character_place.h"

#include <windows.h>

namespace devhost {
namespace {

HWND FocusedEdit(DWORD thread) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  wchar_t name[16] = L"";
  if (!::GetGUIThreadInfo(thread, &info) || !info.hwndFocus) return nullptr;
  ::GetClassNameW(info.hwndFocus, name, 16);
  return ::lstrcmpiW(name, L"Edit") == 0 ? info.hwndFocus : nullptr;
}

// The size of a character in the control's font.
SIZE Extent(HWND edit, wchar_t character) {
  SIZE size{};
  const HDC context = ::GetDC(edit);
  const auto font = reinterpret_cast<HFONT>(::SendMessageW(edit, WM_GETFONT, 0, 0));
  const HGDIOBJ previous = font ? ::SelectObject(context, font) : nullptr;
  ::GetTextExtentPoint32W(context, &character, 1, &size);
  if (previous) ::SelectObject(context, previous);
  ::ReleaseDC(edit, context);
  return size;
}

POINT PlaceOf(HWND edit, int position) {
  const LRESULT place = ::SendMessageW(edit, EM_POSFROMCHAR, static_cast<WPARAM>(position), 0);
  return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}

}  // namespace

std::string FindCharacterPoint(DWORD thread, int position, POINT* out) {
  const HWND edit = FocusedEdit(thread);
  if (!edit) return "no edit control has the focus";
  const int length = ::GetWindowTextLengthW(edit);
  if (position > length) return "the text has only " + std::to_string(length) + " characters";
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(edit, text.data(), length + 1)));
  // An edit control may give no place for the end of its text.
  const bool atEnd = position == static_cast<int>(text.size()) && position > 0;
  const SIZE extent = Extent(edit, atEnd ? text.back() : L'a');
  *out = PlaceOf(edit, atEnd ? position - 1 : position);
  out->x += atEnd ? extent.cx : 0;
  out->y += extent.cy / 2;
  return ::ClientToScreen(edit, out) ? "" : "the edit control is gone";
}

}  // namespace devhost
