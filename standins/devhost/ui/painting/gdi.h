// Owners of GDI handles for the host's windows. Drawing itself uses the Windows functions.
#pragma once

#include <utility>

#include "ground/plain_types.h"

namespace devhost {

// A pen, brush, font or bitmap.
template <typename Handle>
class GdiObject {
 public:
  GdiObject() = default;
  explicit GdiObject(Handle handle) : m_handle(handle) {}
  GdiObject(GdiObject&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~GdiObject() {
    if (m_handle) ::DeleteObject(m_handle);
  }
  Handle Get() const { return m_handle; }
  explicit operator bool() const { return m_handle != nullptr; }

 private:
  Handle m_handle = nullptr;
};

using Pen = GdiObject<HPEN>;
using Brush = GdiObject<HBRUSH>;
using Font = GdiObject<HFONT>;
using Bitmap = GdiObject<HBITMAP>;

// Selects an object during its lifetime.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : m_dc(dc), m_before(::SelectObject(dc, object)) {}
  ~Selected() { ::SelectObject(m_dc, m_before); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC m_dc;
  HGDIOBJ m_before;
};

// The device context of a window outside WM_PAINT.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : m_window(window), m_dc(::GetDC(window)) {}
  ~WindowDc() { ::ReleaseDC(m_window, m_dc); }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  operator HDC() const { return m_dc; }

 private:
  HWND m_window;
  HDC m_dc;
};

// BeginPaint to EndPaint through a memory bitmap, to avoid flicker.
class PaintScope {
 public:
  explicit PaintScope(HWND window);
  ~PaintScope();
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  operator HDC() const { return m_memory; }
  const RECT& Client() const { return m_client; }

 private:
  HWND m_window;
  PAINTSTRUCT m_paint{};
  RECT m_client{};
  HDC m_memory;
  Bitmap m_bitmap;
  HGDIOBJ m_before;
};

HICON MakeProgramIcon(int size);   // the host's icon; not destroyed
Font MenuFont(bool bold = false);  // the user's menu font
int PixelsPerInch();
int Scaled(int pixelsAt96);  // scaled to the screen's resolution

}  // namespace devhost
