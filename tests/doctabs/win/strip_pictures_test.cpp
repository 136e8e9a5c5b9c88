// The strip's pixels: images of its states at 96 and 144 dots per inch, compared with
// tests/doctabs/golden/*.png (tools/accept-golden accepts new ones), and the colours of high
// contrast.
#include "tests/doctabs/win/module_tabs.h"

#include <fstream>
#include <iterator>

#include "devhost/play/png_image.h"
#include "ground/win/owned_handle.h"
#include "tests/doubles/win/screen_dots.h"
#include "tests/module/win/import_slot.h"

namespace {

constexpr wchar_t kDots[] = L"QVX_STRIP_DOTS";
constexpr int kFrameWidth = 620, kFrameHeight = 400;

[[maybe_unused]] const bool g_knowsDots = KnowsDotsIfExpected(kDots);

class StripPictures : public ModuleTabs {
 protected:
  void SetUp() override {
    ModuleTabs::SetUp();
    const HWND frame = HostProcess::Get().Frame().m_hWnd;
    ::GetWindowRect(frame, &m_before);
    ::SetWindowPos(frame, nullptr, 0, 0, kFrameWidth, kFrameHeight, SWP_NOZORDER);
  }
  void TearDown() override {
    ModuleTabs::TearDown();
    ::SetWindowPos(HostProcess::Get().Frame().m_hWnd, nullptr, m_before.left, m_before.top,
                   m_before.right - m_before.left, m_before.bottom - m_before.top, SWP_NOZORDER);
  }
  static void NewNamed(const wchar_t* name) {
    New();
    ::SetWindowTextW(adsw_acadDocWnd(), name);
    if (Strip()) FireTimer(1);
  }
  static void Scroll(int first) {
    ::SendMessageW(Strip(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, first),
                   reinterpret_cast<LPARAM>(::GetWindow(Strip(), GW_CHILD)));
  }
  // Adds the strip's client area, arrows included, below what the sheet has.
  static void AddShot(devhost::Picture& sheet) {
    ::RedrawWindow(Strip(), nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT client{};
    ::GetClientRect(Strip(), &client);
    const HDC from = ::GetDC(Strip());
    const qvx::OwnedMemoryDc to(::CreateCompatibleDC(from));
    const qvx::OwnedBitmap bitmap(::CreateCompatibleBitmap(from, client.right, client.bottom));
    const qvx::SelectedObject selected(to.Get(), bitmap.Get());
    ::BitBlt(to.Get(), 0, 0, client.right, client.bottom, from, 0, 0, SRCCOPY);
    ::ReleaseDC(Strip(), from);
    sheet.width = client.right;
    sheet.height += client.bottom;
    for (int y = 0; y < client.bottom; ++y)
      for (int x = 0; x < client.right; ++x) {
        const COLORREF colour = ::GetPixel(to.Get(), x, y);
        for (const int part : {GetRValue(colour), GetGValue(colour), GetBValue(colour)})
          sheet.rgb.push_back(static_cast<std::uint8_t>(part));
      }
  }
  static std::string BytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  RECT m_before{};
};

}  // namespace

// Run by the test below, in a process with that resolution. From above: three tabs with the middle
// one active; many tabs scrolled to the end; scrolled by two; scrolled to the beginning.
TEST_F(StripPictures, DISABLED_MatchTheGoldenImageOfThisScreen) {
  wchar_t dots[16] = L"";
  ASSERT_GT(::GetEnvironmentVariableW(kDots, dots, 16), 0u);
  const HDC screen = ::GetDC(nullptr);
  EXPECT_EQ(std::to_wstring(::GetDeviceCaps(screen, LOGPIXELSY)), dots);
  ::ReleaseDC(nullptr, screen);
  ASSERT_TRUE(LoadModule());
  for (const wchar_t* name : {L"C:\\A\\plan.dwg", L"C:\\A\\平面图.dwg", L"C:\\B\\plan.dwg"})
    NewNamed(name);
  Click(1);
  devhost::Picture sheet;
  AddShot(sheet);
  for (const wchar_t* name :
       {L"section A-A.dwg", L"立面.dwg", L"details of the stairs.dwg", L"x.dwg", L"roof.dwg",
        L"总平面图.dwg", L"basement.dwg", L"外墙大样.dwg", L"elevation north.dwg"})
    NewNamed(name);
  AddShot(sheet);
  Scroll(2);
  AddShot(sheet);
  Scroll(0);
  AddShot(sheet);
  const std::string golden =
      QVX_SOURCE_DIR "/tests/doctabs/golden/strip-" + devhost::Utf8(dots) + ".png";
  const std::string drawn = devhost::EncodePng(sheet);
  ASSERT_FALSE(drawn.empty());
  if (drawn == BytesOf(golden)) return;
  std::ofstream(golden + ".new", std::ios::binary) << drawn;
  ADD_FAILURE() << "differs from " << golden << "; look at .new beside it";
}

TEST(StripPicturesAtEveryResolution, MatchTheirGoldenImages) {
  const ScreenDots screen;
  for (const int dots : {96, 144}) {
    screen.Set(static_cast<DWORD>(dots));
    ::SetEnvironmentVariableW(kDots, std::to_wstring(dots).c_str());
    EXPECT_EQ(RunSelf(L"--gtest_brief=1 --gtest_also_run_disabled_tests "
                      L"--gtest_filter=StripPictures.DISABLED_MatchTheGoldenImageOfThisScreen"),
              0u)
        << dots;
  }
  ::SetEnvironmentVariableW(kDots, nullptr);
}

namespace {

// The system with high contrast on.
BOOL WINAPI WithHighContrast(UINT action, UINT number, PVOID value, UINT flags) {
  const BOOL done = ::SystemParametersInfoW(action, number, value, flags);
  if (action != SPI_GETHIGHCONTRAST) return done;
  static_cast<HIGHCONTRASTW*>(value)->dwFlags |= HCF_HIGHCONTRASTON;
  return TRUE;
}

struct TabPixels {
  COLORREF fill, topLeft, bottomRight;
  bool operator==(const TabPixels&) const = default;
};

TabPixels PixelsOfActiveTab(HWND strip, int left, int right) {
  ::RedrawWindow(strip, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  RECT client{};
  ::GetClientRect(strip, &client);
  const HDC dc = ::GetDC(strip);
  const TabPixels pixels{::GetPixel(dc, left + 3, 2), ::GetPixel(dc, left, 0),
                         ::GetPixel(dc, right - 3, client.bottom - 1)};
  ::ReleaseDC(strip, dc);
  return pixels;
}

}  // namespace

TEST_F(StripPictures, HighContrastPaintsTheSystemsColoursAndTheMembersKeepTheirs) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  const Json tabs = Tabs();
  const int origin = tabs["rect"][0], left = tabs["tabs"][1]["left"].get<int>() - origin,
            right = tabs["tabs"][1]["right"].get<int>() - origin;
  const TabPixels own{15132410, 0x323232, 0xFAFAFA};
  EXPECT_EQ(PixelsOfActiveTab(Strip(), left, right), own);
  void** slot = ImportSlot(::GetModuleHandleW(L"qvx_initstart.arx"), "SystemParametersInfoW");
  ASSERT_NE(slot, nullptr);
  void* before = *slot;
  StoreSlot(slot, reinterpret_cast<void*>(&WithHighContrast));
  const TabPixels contrast{::GetSysColor(COLOR_HIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW),
                           ::GetSysColor(COLOR_BTNHIGHLIGHT)};
  EXPECT_EQ(PixelsOfActiveTab(Strip(), left, right), contrast);
  StoreSlot(slot, before);
  EXPECT_EQ(PixelsOfActiveTab(Strip(), left, right), own);
}
