// See bare_menu.h.
#include "bare_menu.h"

namespace bench {
namespace {

HFONT MenuFont() {
  static const HFONT font = [] {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return ::CreateFontIndirectW(&metrics.lfMenuFont);
  }();
  return font;
}

const std::wstring& LabelOf(ULONG_PTR data) { return *reinterpret_cast<const std::wstring*>(data); }

void Measure(HWND window, MEASUREITEMSTRUCT& item) {
  const HDC dc = ::GetDC(window);
  const HGDIOBJ before = ::SelectObject(dc, MenuFont());
  const std::wstring& label = LabelOf(item.itemData);
  SIZE size{};
  ::GetTextExtentPoint32W(dc, label.c_str(), static_cast<int>(label.size()), &size);
  ::SelectObject(dc, before);
  ::ReleaseDC(window, dc);
  item.itemWidth = static_cast<UINT>(size.cx) + 16;
  item.itemHeight = 20;
}

void Draw(const DRAWITEMSTRUCT& item) {
  const std::wstring& label = LabelOf(item.itemData);
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_MENU));
  const HGDIOBJ before = ::SelectObject(item.hDC, MenuFont());
  ::SetBkMode(item.hDC, TRANSPARENT);
  RECT place = item.rcItem;
  place.left += 25;
  ::DrawTextW(item.hDC, label.c_str(), static_cast<int>(label.size()), &place,
              DT_SINGLELINE | DT_VCENTER);
  ::SelectObject(item.hDC, before);
}

LRESULT CALLBACK OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MEASUREITEM) Measure(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
  if (message == WM_DRAWITEM) Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
  if (message == WM_MEASUREITEM || message == WM_DRAWITEM) return TRUE;
  return ::DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

BareMenu::BareMenu(HWND parent) {
  WNDCLASSW window{};
  window.lpfnWndProc = OwnerProc;
  window.hInstance = ::GetModuleHandleW(nullptr);
  window.lpszClassName = L"BareMenuOwner";
  ::RegisterClassW(&window);
  m_owner = ::CreateWindowExW(0, window.lpszClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, 1, 1,
                              parent, nullptr, window.hInstance, nullptr);
}

BareMenu::~BareMenu() { ::DestroyWindow(m_owner); }

void BareMenu::Show(const std::vector<std::wstring>& labels, POINT at) {
  const HMENU menu = ::CreatePopupMenu();
  UINT_PTR id = 2000;
  for (const std::wstring& label : labels)
    ::AppendMenuW(menu, MF_OWNERDRAW, id++, reinterpret_cast<const wchar_t*>(&label));
  ::TrackPopupMenu(menu, TPM_RIGHTBUTTON, at.x, at.y, 0, m_owner, nullptr);
  ::DestroyMenu(menu);
}

}  // namespace bench
