// One owner type for every kind of handle that the windows of this module make. An owner frees what
// it holds when it goes, can be moved and not copied, and each kind counts the handles alive, so
// that a test can open and close a window a hundred times and see whether the count came back.
// Device contexts in use and what is selected into them are SelectedObject's.
#pragma once

#include <utility>

#include "afxwin.h"

namespace qvx {

// All kinds together, for the shell state: 0 when the module has gone down.
class LiveHandles {
 public:
  static int Count() { return s_count; }

 protected:
  inline static int s_count = 0;  // windows live on one thread, so does this
};

// A kind names the handle type and how it is freed. `alive` is shared by the whole module.
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

// Selects an object into a device context and puts the earlier one back.
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

// A window's device context for as long as this lives.
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
