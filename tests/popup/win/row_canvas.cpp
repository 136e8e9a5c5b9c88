#include "tests/popup/win/row_canvas.h"

namespace {

constexpr UINT kMetricsSize = 500;
const INT kPinned[] = {COLOR_MENU,     COLOR_HIGHLIGHT,    COLOR_MENUTEXT,  COLOR_HIGHLIGHTTEXT,
                       COLOR_GRAYTEXT, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW, COLOR_BTNFACE};

HBITMAP MakeBitmap(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

void Fill(HDC dc, const RECT& place, COLORREF color) {
  const qvx::OwnedBrush brush(::CreateSolidBrush(color));
  ::FillRect(dc, &place, brush.Get());
}

}  // namespace

PinnedLook::PinnedLook(const wchar_t* face, int height) {
  m_metrics.cbSize = kMetricsSize;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, kMetricsSize, &m_metrics, 0);
  NONCLIENTMETRICSW pinned = m_metrics;
  pinned.lfMenuFont = {};
  pinned.lfMenuFont.lfHeight = height;
  pinned.lfMenuFont.lfWeight = FW_NORMAL;
  pinned.lfMenuFont.lfQuality = NONANTIALIASED_QUALITY;
  pinned.lfMenuFont.lfCharSet = ANSI_CHARSET;
  std::wcsncpy(pinned.lfMenuFont.lfFaceName, face, LF_FACESIZE - 1);
  ::SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, kMetricsSize, &pinned, 0);
  for (int i = 0; i < kCount; ++i) m_colors[i] = ::GetSysColor(kPinned[i]);
  const COLORREF colors[] = {RowCanvas::kMenu,          RowCanvas::kHighlight, RowCanvas::kMenuText,
                             RowCanvas::kHighlightText, RowCanvas::kGrayText,  RowCanvas::kLight,
                             RowCanvas::kShadow,        RowCanvas::kFace};
  ::SetSysColors(kCount, kPinned, colors);
}

PinnedLook::~PinnedLook() {
  ::SetSysColors(kCount, kPinned, m_colors);
  ::SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, kMetricsSize, &m_metrics, 0);
}

RowCanvas::RowCanvas(int width, int height)
    : m_dc(::CreateCompatibleDC(nullptr)),
      m_bitmap(MakeBitmap(width, height)),
      m_before(::SelectObject(m_dc, m_bitmap)),
      m_width(width),
      m_height(height) {
  Fill(m_dc, {0, 0, width, height}, kUntouched);
}

RowCanvas::~RowCanvas() {
  ::SelectObject(m_dc, m_before);
  ::DeleteObject(m_bitmap);
  ::DeleteDC(m_dc);
}

void RowCanvas::Draw(const RECT& row, const wchar_t* label, UINT state, HBITMAP icon) {
  TMenuItem line(label, L"command\n");
  CBitmapMenuItemData record;
  record.Show(&line, 0);
  record.m_hBitmap.Reset(icon);
  DRAWITEMSTRUCT item{};
  item.CtlType = ODT_MENU;
  item.itemAction = ODA_DRAWENTIRE;
  item.itemState = state;
  item.hDC = m_dc;
  item.rcItem = row;
  item.itemData = reinterpret_cast<ULONG_PTR>(&record);
  CBitmapMenu().DrawItem(&item);
}

devhost::Picture RowCanvas::Picture() const {
  devhost::Picture picture;
  picture.width = m_width;
  picture.height = m_height;
  for (int y = 0; y < m_height; ++y)
    for (int x = 0; x < m_width; ++x) {
      const COLORREF color = At(x, y);
      for (const int part : {GetRValue(color), GetGValue(color), GetBValue(color)})
        picture.rgb.push_back(static_cast<std::uint8_t>(part));
    }
  return picture;
}

qvx::OwnedBitmap RowCanvas::MakeIcon(int size) {
  qvx::OwnedBitmap icon(MakeBitmap(size, size));
  const qvx::OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
  qvx::SelectedObject selected(dc.Get(), icon.Get());
  Fill(dc.Get(), {0, 0, size, size}, kIconColor);
  Fill(dc.Get(), {1, 1, size - 1, size - 1}, kFace);
  return icon;
}
