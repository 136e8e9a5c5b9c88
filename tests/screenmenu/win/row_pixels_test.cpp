// Pixels of rows: every state at the depths 0 to 7, compared with row_pixels.golden. The
// label there is a blank, so that no font matters; the position of text is compared
// between states of one run.
#include <cstdint>
#include <fstream>
#include <sstream>

#include "screenmenu/row_look.h"
#include "tree_fixture.h"

namespace {

using namespace fixture;

constexpr int kWidth = 60, kHeight = 24;
constexpr COLORREF kUntouched = RGB(1, 2, 3);
constexpr COLORREF kMark = RGB(200, 0, 1);  // in the middle of the test's image

class RowPixels : public TreeWindows {
 protected:
  RowPixels() {
    for (int i = 0; i < 4; ++i) {
      m_colors[i] = g_menuColors[i];
      g_menuColors[i] = RGB(10, 20, 100 + i);
    }
    HDC screen = ::GetDC(nullptr);
    m_dc = ::CreateCompatibleDC(screen);
    m_canvas.Reset(::CreateCompatibleBitmap(screen, kWidth, kHeight));
    m_image.Reset(::CreateCompatibleBitmap(screen, 16, 16));
    ::ReleaseDC(nullptr, screen);
    const qvx::OwnedMemoryDc image(::CreateCompatibleDC(nullptr));
    qvx::SelectedObject selected(image.Get(), m_image.Get());
    Fill(image.Get(), {0, 0, 16, 16}, ::GetSysColor(COLOR_BTNFACE));
    Fill(image.Get(), {6, 6, 10, 10}, kMark);
    m_before = ::SelectObject(m_dc, m_canvas.Get());
  }
  ~RowPixels() override {
    ::SelectObject(m_dc, m_before);
    ::DeleteDC(m_dc);
    for (int i = 0; i < 4; ++i) g_menuColors[i] = m_colors[i];
  }
  static void Fill(HDC dc, const RECT& place, COLORREF color) {
    const qvx::OwnedBrush brush(::CreateSolidBrush(color));
    ::FillRect(dc, &place, brush.Get());
  }
  // Row 0 of the group at the given depth, in a chain of headers.
  CSMenuItem& RowAtDepth(int depth, const wchar_t* label) {
    root.reset();
    bar.Clear();
    TMenuBar* at = &bar;
    for (int i = 0; i < depth; ++i) at = AddHeader(*at, L"组");
    AddLine(*at, label, L"TLine\n");
    CMenuGroup* group = &Build();
    for (int i = 0; i < depth; ++i) group = group->Child(0);
    CSMenuItem& row = *group->Row(0);
    row.ShareBitmap(m_image.Get(), 16, 16);
    return row;
  }
  void Draw(CSMenuItem& row, bool hover, UINT state) {
    if (hover) row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    Fill(m_dc, {0, 0, kWidth, kHeight}, kUntouched);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.hDC = m_dc;
    draw.rcItem = {0, 0, kWidth, kHeight};
    draw.itemState = state;
    row.DrawItem(&draw);
    ::ReleaseCapture();
    row.ClearHover();
  }
  char Letter(int x, int y) const {
    const COLORREF color = ::GetPixel(m_dc, x, y);
    if (color == kUntouched) return '.';
    if (color == kMark) return '#';
    for (int i = 0; i < 4; ++i)
      if (color == g_menuColors[i]) return static_cast<char>('0' + i);
    if (color == qvx::kHoverColor) return 'y';
    if (color == ::GetSysColor(COLOR_BTNHIGHLIGHT)) return 'H';
    if (color == ::GetSysColor(COLOR_BTNSHADOW)) return 'S';
    return color == ::GetSysColor(COLOR_BTNFACE) ? 'f' : '?';
  }
  // Lines of letters, run-length encoded; equal adjacent lines are written once.
  std::string Told() const {
    std::ostringstream out;
    std::string last;
    int from = 0;
    for (int y = 0; y <= kHeight; ++y) {
      std::ostringstream line;
      for (int x = 0, start = 0; y < kHeight && x < kWidth; ++x)
        if (x + 1 == kWidth || Letter(x + 1, y) != Letter(x, y)) {
          line << ' ' << Letter(x, y) << '*' << x + 1 - start;
          start = x + 1;
        }
      if (y && line.str() != last) {
        out << "  " << from << '-' << y - 1 << last << '\n';
        from = y;
      }
      last = line.str();
    }
    return out.str();
  }
  CRect BoxOf(COLORREF ground) const {
    CRect box(kWidth, kHeight, 0, 0);
    for (int y = 2; y < kHeight - 2; ++y)
      for (int x = 22; x < kWidth - 2; ++x)
        if (::GetPixel(m_dc, x, y) != ground)
          box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                      std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
    return box;
  }

  HDC m_dc;
  qvx::OwnedBitmap m_canvas, m_image;

 private:
  HGDIOBJ m_before;
  COLORREF m_colors[4];
};

TEST_F(RowPixels, EveryStateAtEveryDepthIsAsInTheGoldenFile) {
  struct State {
    const char* name;
    bool hover;
    UINT item;
  };
  const State states[] = {{"idle", false, 0},
                          {"hover", true, 0},
                          {"pressed", true, ODS_SELECTED},
                          {"pressed by key", false, ODS_SELECTED},
                          {"disabled", false, ODS_DISABLED}};
  std::string drawn;
  for (int depth = 0; depth < 8; ++depth) {
    CSMenuItem& row = RowAtDepth(depth, L" ");
    for (const State& state : states) {
      Draw(row, state.hover, state.item);
      drawn += "depth " + std::to_string(depth) + ", " + state.name + "\n" + Told();
    }
    Draw(RowAtDepth(depth, L""), false, ODS_DISABLED);
    drawn += "depth " + std::to_string(depth) + ", separator\n" + Told();
  }
  const std::string golden = QVX_SOURCE_DIR "/tests/screenmenu/row_pixels.golden";
  std::ifstream file(golden, std::ios::binary);
  const std::string accepted((std::istreambuf_iterator<char>(file)), {});
  if (drawn == accepted) return;
  std::ofstream(golden + ".new", std::ios::binary) << drawn;
  ADD_FAILURE() << "rows are drawn otherwise: see row_pixels.golden.new and tools/accept-golden";
}

TEST_F(RowPixels, APressMovesTheTextByOneDownAndRight) {
  CSMenuItem& row = RowAtDepth(1, L"轴");
  Draw(row, false, 0);
  CRect idle = BoxOf(g_menuColors[1]);
  ASSERT_FALSE(idle.IsRectEmpty());
  EXPECT_GE(idle.left, 3 + 4 + 21);
  Draw(row, true, 0);
  EXPECT_EQ(BoxOf(qvx::kHoverColor), idle) << "hover moves the image only";
  Draw(row, true, ODS_SELECTED);
  idle.OffsetRect(1, 1);
  EXPECT_EQ(BoxOf(qvx::kHoverColor), idle);
}

TEST_F(RowPixels, ADisabledRowGreysItsTextAndNotItsImage) {
  CSMenuItem& row = RowAtDepth(1, L"轴");
  const auto darkest = [this] {
    int least = 255 * 3;
    for (int y = 2; y < kHeight - 2; ++y)
      for (int x = 28; x < kWidth - 2; ++x) {
        const COLORREF c = ::GetPixel(m_dc, x, y);
        if (c == g_menuColors[1]) continue;
        least = std::min(least, GetRValue(c) + GetGValue(c) + GetBValue(c));
      }
    return least;
  };
  g_menuColors[1] = RGB(250, 250, 250);
  Draw(row, false, 0);
  const int black = darkest();
  Draw(row, false, ODS_DISABLED);
  EXPECT_GT(darkest(), black);
  EXPECT_EQ(::GetPixel(m_dc, 3 + 7, 4 + 7), kMark);
}

TEST_F(RowPixels, AnAmpersandUnderlinesTheNextLetterAndIsNotShown) {
  Draw(RowAtDepth(1, L"门窗"), false, 0);
  const CRect plain = BoxOf(g_menuColors[1]);
  Draw(RowAtDepth(1, L"门&窗"), false, 0);
  const CRect marked = BoxOf(g_menuColors[1]);
  EXPECT_EQ(marked.left, plain.left);
  EXPECT_LE(marked.Width(), plain.Width() + 2) << "no room for a sign";
}

TEST_F(RowPixels, TheStripLeftOfARowHasItsGroupsColour) {
  CSMenuItem& row = RowAtDepth(2, L" ");
  Fill(m_dc, {0, 0, kWidth, kHeight}, kUntouched);
  row.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(m_dc));
  for (int x : {0, 1, 2}) EXPECT_EQ(::GetPixel(m_dc, x, 5), g_menuColors[2]);
  EXPECT_EQ(::GetPixel(m_dc, 3, 5), kUntouched) << "the rest is drawn over at once";
}

}  // namespace
