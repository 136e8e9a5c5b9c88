// Describing open menus; see the header.
#include "devhost/ui/port/live_menus.h"

#include <oleacc.h>

#include <algorithm>
#include <string>
#include <vector>

#include "devhost/core/base/utf8.h"
#include "devhost/ui/port/window_tree.h"

namespace devhost {
namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU, missing in some headers
constexpr int kMaxDepth = 40;            // nested menus
constexpr DWORD kMaxLabel = 4096;

struct OpenMenu {
  HWND window;
  HMENU menu;
};

std::vector<OpenMenu> OpenMenus(DWORD thread) {
  std::vector<OpenMenu> open;
  ::EnumThreadWindows(
      thread,
      [](HWND window, LPARAM list) -> BOOL {
        wchar_t name[16] = L"";
        ::GetClassNameW(window, name, 16);
        if (std::wstring(name) != L"#32768" || !::IsWindowVisible(window)) return TRUE;
        const auto menu = reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenuHandle, 0, 0));
        if (::IsMenu(menu))
          reinterpret_cast<std::vector<OpenMenu>*>(list)->push_back({window, menu});
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&open));
  return open;
}

template <class T>
bool Copy(const void* from, T* to, SIZE_T count) {
  SIZE_T done = 0;
  return ::ReadProcessMemory(::GetCurrentProcess(), from, to, count * sizeof(T), &done) &&
         done == count * sizeof(T);
}

// Item data may be anything: its signature and size are checked, and reading cannot fault.
std::wstring LabelInRecord(ULONG_PTR data) {
  MSAAMENUINFO record{};
  if (!data || !Copy(reinterpret_cast<const void*>(data), &record, 1) ||
      record.dwMSAASignature != static_cast<DWORD>(MSAA_MENU_SIG) || record.cchWText > kMaxLabel)
    return {};
  std::wstring label(record.cchWText, L'\0');
  return label.empty() || Copy(record.pszWText, label.data(), label.size()) ? label
                                                                            : std::wstring();
}

std::wstring LabelOf(HMENU menu, UINT row, const MENUITEMINFOW& info) {
  if (info.fType & MFT_OWNERDRAW) return LabelInRecord(info.dwItemData);
  std::wstring label(
      static_cast<size_t>(::GetMenuStringW(menu, row, nullptr, 0, MF_BYPOSITION)) + 1, L'\0');
  label.resize(static_cast<size_t>(
      ::GetMenuStringW(menu, row, label.data(), static_cast<int>(label.size()), MF_BYPOSITION)));
  return label;
}

class MenuReader {
 public:
  explicit MenuReader(const std::vector<OpenMenu>& open) : m_open(open) {}

  Json Rows(HMENU menu, int depth) const {
    Json rows = Json::array();
    const int count = depth < kMaxDepth ? ::GetMenuItemCount(menu) : 0;
    for (int i = 0; i < count; ++i) rows.push_back(Row(menu, static_cast<UINT>(i), depth));
    return rows;
  }

 private:
  Json Row(HMENU menu, UINT row, int depth) const {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_DATA;
    ::GetMenuItemInfoW(menu, row, TRUE, &info);
    const std::wstring label = LabelOf(menu, row, info);
    Json out = {{"label", Utf8(label)},
                {"text", Utf8(WithoutMnemonic(label.substr(0, label.find(L'\t'))))},
                {"id", info.hSubMenu ? 0u : info.wID},
                {"enabled", (info.fState & (MFS_GRAYED | MFS_DISABLED)) == 0},
                {"checked", (info.fState & MFS_CHECKED) != 0},
                {"separator", (info.fType & MFT_SEPARATOR) != 0},
                {"rect", RectOf(menu, row)}};
    if (info.hSubMenu) out["rows"] = Rows(info.hSubMenu, depth + 1);
    return out;
  }

  // Menus higher than the screen scroll; rows outside the window have no rectangle.
  Json RectOf(HMENU menu, UINT row) const {
    RECT rect{}, window{}, seen{};
    for (const OpenMenu& open : m_open)
      if (open.menu == menu && ::GetMenuItemRect(nullptr, menu, row, &rect) &&
          ::GetWindowRect(open.window, &window) && ::IntersectRect(&seen, &rect, &window))
        return {seen.left, seen.top, seen.right, seen.bottom};
    return nullptr;
  }

  const std::vector<OpenMenu>& m_open;
};

bool IsInside(HMENU outer, HMENU wanted, int depth) {
  for (int i = depth < kMaxDepth ? ::GetMenuItemCount(outer) - 1 : -1; i >= 0; --i) {
    const HMENU sub = ::GetSubMenu(outer, i);
    if (sub && (sub == wanted || IsInside(sub, wanted, depth + 1))) return true;
  }
  return false;
}

}  // namespace

Json DescribeLiveMenus(DWORD thread) {
  const std::vector<OpenMenu> open = OpenMenus(thread);
  const auto outermost = std::find_if(open.begin(), open.end(), [&](const OpenMenu& one) {
    return std::none_of(open.begin(), open.end(), [&](const OpenMenu& other) {
      return other.menu != one.menu && IsInside(other.menu, one.menu, 0);
    });
  });
  if (outermost == open.end()) return {{"open", false}, {"rows", Json::array()}};
  return {{"open", true}, {"rows", MenuReader(open).Rows(outermost->menu, 0)}};
}

bool IsPopupMenuOpen(DWORD thread) { return !OpenMenus(thread).empty(); }

}  // namespace devhost
