// See big_menus.h.
#include "big_menus.h"

#include <string>

namespace bench {
namespace {

TMenuItem* AddLine(TMenuBar& bar, const std::wstring& label, const wchar_t* command) {
  auto* line = new TMenuItem(label.c_str(), command);
  bar.Append(line);
  return line;
}

std::unique_ptr<TMenuBar> ScreenBar() {
  auto bar = std::make_unique<TMenuBar>();
  bar->m_strName = L"SCREEN";
  return bar;
}

}  // namespace

std::unique_ptr<TMenuBar> FlatMenu(int rows) {
  auto bar = ScreenBar();
  for (int i = 0; i < rows; ++i) AddLine(*bar, L"绘制墙体 " + std::to_wstring(i), L"TWall\n");
  return bar;
}

std::unique_ptr<TMenuBar> FoldingMenu(int headers, int rows) {
  auto bar = ScreenBar();
  int left = rows - headers;
  for (int h = 0; h < headers; ++h) {
    TMenuItem* header = AddLine(*bar, L"墙体 " + std::to_wstring(h), L"");
    header->m_pSubMenu = new TMenuBar;
    const int share = h + 1 < headers ? (rows - headers) / headers : left;
    for (int i = 0; i < share; ++i)
      AddLine(*header->m_pSubMenu, L"绘制墙体 " + std::to_wstring(i), L"TWall\n")->m_nIconIndex = 0;
    left -= share;
  }
  return bar;
}

}  // namespace bench
