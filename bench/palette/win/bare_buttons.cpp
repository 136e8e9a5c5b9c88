// See bare_buttons.h.
#include "bare_buttons.h"

#include <string>

namespace bench {
namespace {

void PaintButton(const DRAWITEMSTRUCT& item) {
  wchar_t text[64];
  const int units = ::GetWindowTextW(item.hwndItem, text, 64);
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(COLOR_BTNFACE));
  ::DrawStateW(item.hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(text),
               static_cast<WPARAM>(units), 25, 4, 0, 0, DST_PREFIXTEXT);
}

LRESULT CALLBACK ParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_DRAWITEM) return ::DefWindowProcW(window, message, wParam, lParam);
  PaintButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
  return TRUE;
}

const wchar_t* ParentClass() {
  static const wchar_t* const name = [] {
    WNDCLASSW window{};
    window.lpfnWndProc = ParentProc;
    window.hInstance = ::GetModuleHandleW(nullptr);
    window.lpszClassName = L"BareButtonsParent";
    ::RegisterClassW(&window);
    return window.lpszClassName;
  }();
  return name;
}

}  // namespace

BareButtons::BareButtons(CWnd& frame, const CRect& place)
    : m_parent(::CreateWindowExW(0, ParentClass(), L"", WS_CHILD | WS_CLIPCHILDREN, place.left,
                                 place.top, place.Width(), place.Height(), frame.m_hWnd, nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr)) {}

BareButtons::~BareButtons() { ::DestroyWindow(m_parent); }

void BareButtons::Create(int count, int height) {
  CRect client;
  ::GetClientRect(m_parent, &client);
  for (int i = 0; i < count; ++i) {
    const std::wstring text = L"绘制墙体 " + std::to_wstring(i);
    HWND button = ::CreateWindowExW(0, L"BUTTON", text.c_str(),
                                    WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_NOTIFY | BS_OWNERDRAW,
                                    0, 2 + i * height, client.Width(), height, m_parent,
                                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(5000 + i)),
                                    ::GetModuleHandleW(nullptr), nullptr);
    ::EnableWindow(button, TRUE);
    m_buttons.push_back(button);
  }
}

void BareButtons::Show() {
  ::ShowWindow(m_parent, SW_SHOW);
  ::RedrawWindow(m_parent, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

}  // namespace bench
