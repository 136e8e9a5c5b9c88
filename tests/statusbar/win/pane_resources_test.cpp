// The resources of the panes in the module: icons by state, all lines of the menus.
#include "statusbar/pane_icons.h"
#include "tests/statusbar/win/bar_host.h"

namespace {

std::vector<MenuLine> MenuOf(int id, std::wstring* title) {
  const HMENU menu = ::LoadMenuW(qvx::ThisModule(), MAKEINTRESOURCEW(id));
  wchar_t text[100] = L"";
  ::GetMenuStringW(menu, 0, text, 100, MF_BYPOSITION);
  *title = text;
  const auto lines = LinesOf(::GetSubMenu(menu, 0));
  ::DestroyMenu(menu);
  return lines;
}

// The pixels of the icon on a white background.
std::vector<COLORREF> PixelsOf(HICON icon) {
  const HDC screen = ::GetDC(nullptr), dc = ::CreateCompatibleDC(screen);
  const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 16, 16);
  const HGDIOBJ old = ::SelectObject(dc, bitmap);
  const RECT all = {0, 0, 16, 16};
  ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
  ::DrawIconEx(dc, 0, 0, icon, 16, 16, 0, nullptr, DI_NORMAL);
  std::vector<COLORREF> pixels;
  for (int i = 0; i < 256; ++i) pixels.push_back(::GetPixel(dc, i % 16, i / 16));
  ::SelectObject(dc, old);
  ::DeleteObject(bitmap);
  ::DeleteDC(dc);
  ::ReleaseDC(nullptr, screen);
  return pixels;
}

int Coloured(const std::vector<COLORREF>& pixels) {
  int count = 0;
  for (const COLORREF c : pixels)
    count += GetRValue(c) != GetGValue(c) || GetGValue(c) != GetBValue(c);
  return count;
}

}  // namespace

TEST(PaneResources, OffIsGreyAndOnIsColoured) {
  for (int off = 57627; off < 57637; off += 2) {
    const HICON offIcon = qvx::PaneIcon(off), onIcon = qvx::PaneIcon(off + 1);
    ASSERT_NE(offIcon, nullptr) << off;
    ASSERT_NE(onIcon, nullptr) << off + 1;
    EXPECT_EQ(Coloured(PixelsOf(offIcon)), 0) << off;
    EXPECT_GT(Coloured(PixelsOf(onIcon)), 100) << off + 1;
    EXPECT_NE(PixelsOf(offIcon), std::vector<COLORREF>(256, RGB(255, 255, 255))) << off;
  }
}

TEST(PaneResources, TheSameIconIsTheSameHandleAndAMissingOneIsNull) {
  EXPECT_EQ(qvx::PaneIcon(57635), qvx::PaneIcon(57635));
  EXPECT_EQ(qvx::PaneIcon(57637), nullptr);
}

TEST(PaneResources, TheStateMenusGreyAndCheckTheCurrentState) {
  const MenuLine on{L"开(&O)", 40215, false, false}, onNow{L"开(&O)", 40215, true, true};
  const MenuLine off{L"关(&F)", 40216, false, false}, offNow{L"关(&F)", 40216, true, true};
  const MenuLine bar{L"", 0, false, false}, settings{L"设置(&S)...", 40217, false, false};
  const std::pair<int, std::vector<MenuLine>> kMenus[] = {{217, {on, offNow, bar, settings}},
                                                          {218, {onNow, off, bar, settings}},
                                                          {246, {on, offNow}},
                                                          {247, {onNow, off}}};
  for (const auto& [id, lines] : kMenus) {
    std::wstring title;
    EXPECT_EQ(MenuOf(id, &title), lines) << id;
    EXPECT_EQ(title, L"状态设置") << id;
  }
}

TEST(PaneResources, TheScaleMenuHasItsLinesInOrder) {
  const std::pair<const wchar_t*, UINT> kLines[] = {
      {L"1:0.5", 40234}, {L"1:1", 40232},        {L"1:2", 40233},   {L"1:5", 40218},
      {L"1:10", 40219},  {L"1:20", 40220},       {L"1:25", 40221},  {L"1:30", 40222},
      {L"1:50", 40223},  {L"1:100", 40224},      {L"1:150", 40225}, {L"1:200", 40226},
      {L"1:250", 40227}, {L"1:300", 40230},      {L"1:500", 40228}, {L"1:1000", 40229},
      {L"", 0},          {L"其它比例...", 40231}};
  std::wstring title;
  const auto lines = MenuOf(221, &title);
  EXPECT_EQ(title, L"比例");
  ASSERT_EQ(lines.size(), std::size(kLines));
  for (size_t i = 0; i < lines.size(); ++i)
    EXPECT_EQ(lines[i], (MenuLine{kLines[i].first, kLines[i].second, false, false})) << i;
}
