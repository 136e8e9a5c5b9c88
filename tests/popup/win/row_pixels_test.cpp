// Pixels of rows drawn by the real code, and all states together as an image, compared with
// tests/popup/golden/rows.png; tools/accept-golden accepts a new one.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "tests/popup/win/row_canvas.h"

namespace {

constexpr int kWidth = 160;
constexpr RECT kRow = {0, 0, kWidth, 20};
using Colors = std::set<COLORREF>;

class RowPixels : public testing::Test {
 protected:
  // The record frees the bitmap handles of the canvas.
  HBITMAP Icon(int size = 16) {
    qvx::OwnedBitmap icon = RowCanvas::MakeIcon(size);
    const auto copy = static_cast<HBITMAP>(::CopyImage(icon.Get(), IMAGE_BITMAP, 0, 0, 0));
    return copy;
  }
  Colors ColorsIn(const RowCanvas& canvas, const RECT& place) {
    Colors colors;
    for (int y = place.top; y < place.bottom; ++y)
      for (int x = place.left; x < place.right; ++x) colors.insert(canvas.At(x, y));
    return colors;
  }
  // True if the edge of the rectangle, one pixel wide, has one colour.
  bool IsFramed(const RowCanvas& canvas, const RECT& r, COLORREF color) {
    return ColorsIn(canvas, {r.left, r.top, r.right, r.top + 1}) == Colors{color} &&
           ColorsIn(canvas, {r.left, r.bottom - 1, r.right, r.bottom}) == Colors{color} &&
           ColorsIn(canvas, {r.left, r.top, r.left + 1, r.bottom}) == Colors{color} &&
           ColorsIn(canvas, {r.right - 1, r.top, r.right, r.bottom}) == Colors{color};
  }
  // Bounding box of the pixels with the colour; empty if there are none.
  RECT BoxOf(const RowCanvas& canvas, COLORREF color, int height = 20) {
    RECT box = {kWidth, height, 0, 0};
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < kWidth; ++x) {
        if (canvas.At(x, y) != color) continue;
        box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y),
               std::max<LONG>(box.right, x + 1), std::max<LONG>(box.bottom, y + 1)};
      }
    return box;
  }

  PinnedLook look;
  RowCanvas canvas{kWidth, 40};
};

TEST_F(RowPixels, ANormalRowIsMenuColouredWithItsIconAtTwoTwo) {
  canvas.Draw(kRow, L"", 0, Icon());
  EXPECT_EQ(ColorsIn(canvas, kRow), (Colors{RowCanvas::kMenu, RowCanvas::kIconColor}));
  EXPECT_TRUE(IsFramed(canvas, {2, 2, 18, 18}, RowCanvas::kIconColor));
  EXPECT_EQ(canvas.At(3, 3), RowCanvas::kMenu) << "the face colour shows what is behind";
  EXPECT_EQ(canvas.At(0, 20), RowCanvas::kUntouched);
}

TEST_F(RowPixels, ASelectedRowHasABandFromTwentyOneAndARaisedBoxAndMovesItsIcon) {
  canvas.Draw(kRow, L"", ODS_SELECTED, Icon());
  EXPECT_EQ(ColorsIn(canvas, {21, 0, kWidth, 20}), Colors{RowCanvas::kHighlight});
  EXPECT_EQ(ColorsIn(canvas, {20, 0, 21, 20}), Colors{RowCanvas::kUntouched});
  EXPECT_EQ(ColorsIn(canvas, {0, 0, 19, 1}), Colors{RowCanvas::kLight});
  EXPECT_EQ(ColorsIn(canvas, {0, 0, 1, 19}), Colors{RowCanvas::kLight});
  EXPECT_EQ(ColorsIn(canvas, {0, 19, 20, 20}), Colors{RowCanvas::kShadow});
  EXPECT_EQ(ColorsIn(canvas, {19, 0, 20, 20}), Colors{RowCanvas::kShadow});
  EXPECT_TRUE(IsFramed(canvas, {3, 1, 19, 17}, RowCanvas::kIconColor));
  EXPECT_EQ(ColorsIn(canvas, {1, 17, 19, 19}), Colors{RowCanvas::kMenu});
}

TEST_F(RowPixels, TextStartsAtTwentyFiveInTheColourOfItsState) {
  const struct {
    UINT state;
    COLORREF color;
  } cases[] = {{0, RowCanvas::kMenuText},
               {ODS_SELECTED, RowCanvas::kHighlightText},
               {ODS_GRAYED, RowCanvas::kGrayText},
               {ODS_GRAYED | ODS_SELECTED, RowCanvas::kMenu}};
  for (const auto& one : cases) {
    RowCanvas own(kWidth, 20);
    own.Draw(kRow, L"HHH", one.state);
    RECT box = BoxOf(own, one.color);
    if (one.state & ODS_SELECTED && one.state & ODS_GRAYED) {
      // The inner box has that colour too: compare to the right of it.
      EXPECT_EQ(ColorsIn(own, {21, 0, kWidth, 20}),
                (Colors{RowCanvas::kHighlight, RowCanvas::kMenu}));
      continue;
    }
    EXPECT_GE(box.left, 25) << one.state;
    EXPECT_LE(box.left, 27) << one.state;
    EXPECT_GT(box.bottom - box.top, 5) << one.state;
    EXPECT_LE(box.right, 60) << one.state;
  }
}

TEST_F(RowPixels, AGreyRowHasNoImageAndALightCopyBelowItsText) {
  canvas.Draw(kRow, L"HHH", ODS_GRAYED, Icon());
  EXPECT_EQ(ColorsIn(canvas, {0, 0, 25, 20}), Colors{RowCanvas::kMenu});
  EXPECT_EQ(ColorsIn(canvas, kRow),
            (Colors{RowCanvas::kMenu, RowCanvas::kGrayText, RowCanvas::kLight}));
  int copied = 0;
  for (int y = 0; y < 19; ++y)
    for (int x = 25; x < kWidth - 1; ++x) {
      if (canvas.At(x, y) != RowCanvas::kGrayText) continue;
      const COLORREF below = canvas.At(x + 1, y + 1);
      EXPECT_TRUE(below == RowCanvas::kLight || below == RowCanvas::kGrayText) << x << "," << y;
      copied += below == RowCanvas::kLight;
    }
  EXPECT_GT(copied, 5);
}

TEST_F(RowPixels, AGreyAndSelectedRowHasTheBandAndAnEmptyImageColumn) {
  canvas.Draw(kRow, L"HHH", ODS_GRAYED | ODS_SELECTED, Icon());
  EXPECT_EQ(ColorsIn(canvas, {21, 0, kWidth, 20}),
            (Colors{RowCanvas::kHighlight, RowCanvas::kMenu}));
  EXPECT_TRUE(IsFramed(canvas, {1, 1, 19, 19}, RowCanvas::kMenu));
  EXPECT_EQ(ColorsIn(canvas, {2, 2, 18, 18}), Colors{RowCanvas::kUntouched});
  EXPECT_EQ(ColorsIn(canvas, {0, 0, 20, 1}), Colors{RowCanvas::kUntouched});
}

TEST_F(RowPixels, ACheckedRowShowsTheCheckMarkAndNotItsIcon) {
  canvas.Draw(kRow, L"", ODS_CHECKED, Icon());
  const Colors colors = ColorsIn(canvas, kRow);
  EXPECT_EQ(colors, (Colors{RowCanvas::kMenu, RGB(0, 0, 0)}));
  const RECT mark = BoxOf(canvas, RGB(0, 0, 0));
  EXPECT_TRUE(mark.left >= 2 && mark.top >= 2 && mark.right <= 18 && mark.bottom <= 18);
  RowCanvas selected(kWidth, 20);
  selected.Draw(kRow, L"", ODS_CHECKED | ODS_SELECTED, Icon());
  const RECT moved = BoxOf(selected, RGB(0, 0, 0));
  EXPECT_EQ(moved.left, mark.left + 1);
  EXPECT_EQ(moved.top, mark.top - 1);
}

TEST_F(RowPixels, ACheckedGreyRowShowsNeither) {
  canvas.Draw(kRow, L"", ODS_CHECKED | ODS_GRAYED, Icon());
  EXPECT_EQ(ColorsIn(canvas, kRow), Colors{RowCanvas::kMenu});
}

TEST_F(RowPixels, ARowWithoutAnIconHasAnEmptyImageColumn) {
  canvas.Draw(kRow, L"", 0);
  EXPECT_EQ(ColorsIn(canvas, kRow), Colors{RowCanvas::kMenu});
}

TEST_F(RowPixels, AnIconOfAnotherSizeIsScaledToSixteen) {
  canvas.Draw(kRow, L"", 0, Icon(48));
  const RECT box = BoxOf(canvas, RowCanvas::kIconColor);
  EXPECT_TRUE(box.left >= 2 && box.top >= 2 && box.right <= 18 && box.bottom <= 18);
  RowCanvas small(kWidth, 20);
  small.Draw(kRow, L"", 0, Icon(8));
  EXPECT_TRUE(IsFramed(small, {2, 2, 18, 18}, RowCanvas::kIconColor));
}

TEST_F(RowPixels, AHigherRowCentresItsBoxAndLeavesTheImageAtTheTop) {
  canvas.Draw({0, 0, kWidth, 31}, L"", ODS_SELECTED, Icon());
  EXPECT_EQ(ColorsIn(canvas, {0, 5, 19, 6}).count(RowCanvas::kLight), 1u);
  EXPECT_EQ(canvas.At(0, 4), RowCanvas::kUntouched);
  EXPECT_EQ(ColorsIn(canvas, {0, 24, 20, 25}), Colors{RowCanvas::kShadow});
  EXPECT_EQ(canvas.At(3, 1), RowCanvas::kIconColor);
  EXPECT_EQ(ColorsIn(canvas, {21, 0, kWidth, 31}), Colors{RowCanvas::kHighlight});
}

TEST_F(RowPixels, ALowerRowHasItsBoxAtTheTop) {
  canvas.Draw({0, 0, kWidth, 14}, L"", ODS_SELECTED);
  EXPECT_EQ(canvas.At(0, 0), RowCanvas::kLight);
  EXPECT_EQ(canvas.At(5, 19), RowCanvas::kShadow);
}

TEST_F(RowPixels, TextAfterTheLastTabEndsSixteenPixelsFromTheRight) {
  canvas.Draw(kRow, L"A\tHH", 0);
  const RECT box = BoxOf(canvas, RowCanvas::kMenuText);
  EXPECT_LE(box.right, kWidth - 16);
  EXPECT_GE(box.right, kWidth - 18);
  EXPECT_GE(box.left, 25);
}

TEST_F(RowPixels, TextBetweenTwoTabsIsNotDrawn) {
  RowCanvas one(kWidth, 20), two(kWidth, 20);
  one.Draw(kRow, L"A\tHH", 0);
  two.Draw(kRow, L"A\tdropped\tHH", 0);
  EXPECT_EQ(one.Picture().rgb, two.Picture().rgb);
}

TEST_F(RowPixels, ALabelOf255CharactersStaysInItsRow) {
  canvas.Draw(kRow, std::wstring(255, L'H').c_str(), ODS_SELECTED);
  EXPECT_EQ(ColorsIn(canvas, {21, 0, kWidth, 20}),
            (Colors{RowCanvas::kHighlight, RowCanvas::kHighlightText}));
  EXPECT_EQ(ColorsIn(canvas, {0, 20, kWidth, 40}), Colors{RowCanvas::kUntouched});
}

TEST_F(RowPixels, TheDataOfARowBeginsWithItsLabelForScreenReaders) {
  TMenuItem line(L"改层", L"a\n");
  CBitmapMenuItemData record;
  record.Show(&line, 0);
  const auto* read = reinterpret_cast<const MSAAMENUINFO*>(&record);
  EXPECT_EQ(read->dwMSAASignature, static_cast<DWORD>(MSAA_MENU_SIG));
  EXPECT_EQ(read->cchWText, 2u);
  EXPECT_STREQ(read->pszWText, L"改层");
}

TEST_F(RowPixels, ARowWhoseLineWasDestroyedDrawsNothing) {
  TMenuItem line(L"A", L"a\n");
  CBitmapMenuItemData record;
  record.Show(&line, 0);
  EXPECT_EQ(record.m_accessible.cchWText, 1u);
  record.Forget();
  EXPECT_EQ(record.m_accessible.cchWText, 0u);
  DRAWITEMSTRUCT item{};
  item.itemData = reinterpret_cast<ULONG_PTR>(&record);
  CBitmapMenu().DrawItem(&item);
  MEASUREITEMSTRUCT size{};
  size.itemData = item.itemData;
  CBitmapMenu().MeasureItem(&size);
  EXPECT_EQ(size.itemWidth, 16u);
}

TEST_F(RowPixels, DrawingAHundredRowsLeaksNoHandle) {
  const int before = qvx::LiveHandles::Count();
  for (int i = 0; i < 100; ++i)
    canvas.Draw(kRow, L"A\tB", i % 2 ? ODS_CHECKED : ODS_GRAYED, Icon());
  EXPECT_EQ(qvx::LiveHandles::Count(), before);
}

TEST_F(RowPixels, TheMeasuredWidthIsThatOfTheLabelWithItsTabAndSixteen) {
  const auto measure = [](const wchar_t* label) {
    TMenuItem line(label, L"a\n");
    CBitmapMenuItemData record;
    record.Show(&line, 0);
    MEASUREITEMSTRUCT item{};
    item.itemData = reinterpret_cast<ULONG_PTR>(&record);
    CBitmapMenu().MeasureItem(&item);
    return SIZE{static_cast<LONG>(item.itemWidth), static_cast<LONG>(item.itemHeight)};
  };
  const SIZE empty = measure(L""), one = measure(L"HH"), two = measure(L"HHHH");
  EXPECT_EQ(empty.cx, 16);
  EXPECT_EQ(two.cx - 16, 2 * (one.cx - 16));
  EXPECT_EQ(one.cy, std::max(::GetSystemMetrics(SM_CYMENU), 20));
  EXPECT_GT(measure(L"HH\tHH").cx, two.cx) << "the tab counts as a character";
}

std::string BytesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Every state with and without an icon, a higher row, labels with tabs.
TEST_F(RowPixels, AllStatesTogetherMatchTheGoldenImage) {
  RowCanvas sheet(2 * kWidth, 9 * 20 + 31);
  const UINT states[] = {0,
                         ODS_SELECTED,
                         ODS_GRAYED,
                         ODS_GRAYED | ODS_SELECTED,
                         ODS_CHECKED,
                         ODS_CHECKED | ODS_SELECTED,
                         ODS_CHECKED | ODS_GRAYED,
                         ODS_CHECKED | ODS_GRAYED | ODS_SELECTED};
  LONG y = 0;
  for (const UINT state : states) {
    sheet.Draw({0, y, kWidth, y + 20}, L"Wall (&W)", state, Icon());
    sheet.Draw({kWidth, y, 2 * kWidth, y + 20}, L"Layer\tCtrl+L", state);
    y += 20;
  }
  sheet.Draw({0, y, kWidth, y + 31}, L"High", 0, Icon());
  sheet.Draw({kWidth, y, 2 * kWidth, y + 31}, L"High\tF1", ODS_SELECTED, Icon());
  y += 31;
  sheet.Draw({0, y, kWidth, y + 20}, L"Two\ttabs\tF8", 0, Icon(48));
  sheet.Draw({kWidth, y, 2 * kWidth, y + 20}, std::wstring(255, L'W').c_str(), ODS_SELECTED);
  const std::string golden = QVX_SOURCE_DIR "/tests/popup/golden/rows.png";
  const std::string drawn = devhost::EncodePng(sheet.Picture());
  if (drawn == BytesOf(golden)) return;
  std::ofstream(golden + ".new", std::ios::binary) << drawn;
  ADD_FAILURE() << "differs from " << golden << "; look at .new beside it";
}

}  // namespace
