// Owners of the handles that the module's windows create. An owner frees its handle when it is
// destroyed; it can be moved and not copied. Each kind counts its live handles, so that leaks are
// found. SelectedObject and WindowDc restore and release device contexts; they are not counted.
#pragma once

#include <utility>

#include "afxwin.h"

namespace qvx {

// Live handles of all kinds, for the shell state: 0 after the module is unloaded.
class LiveHandles {
 public:
  static int Count() { return s_count; }

 protected:
  inline static int s_count = 0;  // not atomic: windows use one thread only
};

// Kind: the handle type and how it is freed. The whole module shares one count per kind.
template <class Kind>
class OwnedHandle : private LiveHandles {
 public:
  using Handle = typename Kind::Handle;

  OwnedHandle() = default;
  explicit OwnedHandle(Handle handle) : m_handle(handle) { Count(1); }
  OwnedHandle(OwnedHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  OwnedHandle& operator=(OwnedHandle&& other) noexcept {
    if (this != &other) Take(std::exchange(other.m_handle, nullptr));
    return *this;
  }
  OwnedHandle(const OwnedHandle&) = delete;
  OwnedHandle& operator=(const OwnedHandle&) = delete;
  ~OwnedHandle() { Free(); }

  void Reset(Handle handle = nullptr) {
    Free();
    m_handle = handle;
    Count(1);
  }
  Handle Get() const { return m_handle; }
  explicit operator bool() const { return m_handle != nullptr; }

  static int Alive() { return s_alive; }

 private:
  void Take(Handle handle) {
    Free();
    m_handle = handle;
  }
  void Free() {
    if (!m_handle) return;
    Count(-1);
    Kind::Free(m_handle);
    m_handle = nullptr;
  }
  void Count(int step) {
    if (!m_handle) return;
    s_alive += step;
    s_count += step;
  }

  Handle m_handle = nullptr;
  inline static int s_alive = 0;
};

template <class GdiHandle>
struct GdiKind {
  using Handle = GdiHandle;
  static void Free(Handle handle) { ::DeleteObject(handle); }
};
struct CursorKind {
  using Handle = HCURSOR;
  static void Free(Handle handle) { ::DestroyCursor(handle); }
};
struct IconKind {
  using Handle = HICON;
  static void Free(Handle handle) { ::DestroyIcon(handle); }
};
struct MemoryDcKind {
  using Handle = HDC;
  static void Free(Handle handle) { ::DeleteDC(handle); }
};

using OwnedBitmap = OwnedHandle<GdiKind<HBITMAP>>;
using OwnedBrush = OwnedHandle<GdiKind<HBRUSH>>;
using OwnedPen = OwnedHandle<GdiKind<HPEN>>;
using OwnedFont = OwnedHandle<GdiKind<HFONT>>;
using OwnedCursor = OwnedHandle<CursorKind>;
using OwnedIcon = OwnedHandle<IconKind>;
using OwnedMemoryDc = OwnedHandle<MemoryDcKind>;

// Selects an object into a device context and restores the previous one.
class SelectedObject {
 public:
  SelectedObject(HDC dc, HGDIOBJ object) : m_dc(dc), m_old(::SelectObject(dc, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() {
    if (m_old) ::SelectObject(m_dc, m_old);
  }

 private:
  HDC m_dc;
  HGDIOBJ m_old;
};

// Releases a window's device context at the end of the scope.
class WindowDc {
 public:
  WindowDc(HWND window, HDC dc) : m_window(window), m_dc(dc) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() {
    if (m_dc) ::ReleaseDC(m_window, m_dc);
  }
  HDC Get() const { return m_dc; }

 private:
  HWND m_window;
  HDC m_dc;
};

}  // namespace qvx
