// Painting through memory, and the user's menu font; see the header.
#include "gdi.h"

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
