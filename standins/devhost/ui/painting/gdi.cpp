// Buffered painting, the menu font; see the header.
#include "devhost/ui/painting/gdi.h"

#include <algorithm>

namespace devhost {

PaintScope::PaintScope(HWND window) : m_window(window) {
  const HDC screen = ::BeginPaint(window, &m_paint);
  ::GetClientRect(window, &m_client);
  m_memory = ::CreateCompatibleDC(screen);
  m_bitmap = Bitmap(::CreateCompatibleBitmap(screen, std::max<int>(m_client.right, 1),
                                             std::max<int>(m_client.bottom, 1)));
  m_before = ::SelectObject(m_memory, m_bitmap.Get());
}

PaintScope::~PaintScope() {
  const RECT& r = m_paint.rcPaint;
  ::BitBlt(m_paint.hdc, r.left, r.top, r.right - r.left, r.bottom - r.top, m_memory, r.left, r.top,
           SRCCOPY);
  ::SelectObject(m_memory, m_before);
  ::DeleteDC(m_memory);
  ::EndPaint(m_window, &m_paint);
}

// A crosshair on a dark background with an orange corner; drawing it is shorter than an icon file.
HICON MakeProgramIcon(int size) {
  WindowDc screen(nullptr);
  const HDC memory = ::CreateCompatibleDC(screen);
  Bitmap color(::CreateCompatibleBitmap(screen, size, size));
  Bitmap mask(::CreateBitmap(size, size, 1, 1, nullptr));
  {
    Selected target(memory, mask.Get());
    ::PatBlt(memory, 0, 0, size, size, BLACKNESS);
  }
  {
    Selected target(memory, color.Get());
    Brush ground(::CreateSolidBrush(RGB(33, 40, 48))),
        corner(::CreateSolidBrush(RGB(240, 140, 40)));
    Brush line(::CreateSolidBrush(RGB(235, 235, 235)));
    const int middle = size / 2, edge = size / 8, thick = std::max(1, size / 16);
    const RECT all = {0, 0, size, size}, box = {middle + thick, edge, size - edge, middle - thick};
    const RECT across = {edge, middle - thick, size - edge, middle};
    const RECT down = {middle - thick, edge, middle, size - edge};
    ::FillRect(memory, &all, ground.Get());
    ::FillRect(memory, &box, corner.Get());
    ::FillRect(memory, &across, line.Get());
    ::FillRect(memory, &down, line.Get());
  }
  ::DeleteDC(memory);
  ICONINFO icon = {TRUE, 0, 0, mask.Get(), color.Get()};
  return ::CreateIconIndirect(&icon);
}

Font MenuFont(bool bold) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  if (bold) metrics.lfMenuFont.lfWeight = FW_BOLD;
  return Font(::CreateFontIndirectW(&metrics.lfMenuFont));
}

int PixelsPerInch() {
  WindowDc screen(nullptr);
  return ::GetDeviceCaps(screen, LOGPIXELSY);
}

int Scaled(int pixelsAt96) { return ::MulDiv(pixelsAt96, PixelsPerInch(), 96); }

}  // namespace devhost
