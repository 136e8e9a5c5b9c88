// The plain Windows types for code without windows. On Windows they come from the class library,
// which rejects a windows.h that was included before it. Elsewhere they are defined here with the
// same layout. No function is declared: this does not replace windows.h.
#pragma once

#ifdef _WIN32
#include "afx.h"
#else
#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using COLORREF = std::uint32_t;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

struct POINT {
  LONG x, y;
};
struct SIZE {
  LONG cx, cy;
};
struct RECT {
  LONG left, top, right, bottom;
};

struct HWND__;
struct HINSTANCE__;
struct HKEY__;
using HWND = HWND__*;
using HINSTANCE = HINSTANCE__*;
using HMODULE = HINSTANCE__*;
using HKEY = HKEY__*;

struct MSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;
  POINT pt;
};

constexpr COLORREF RGB(int r, int g, int b) {
  return static_cast<COLORREF>((r & 255) | (g & 255) << 8 | (b & 255) << 16);
}
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(std::uintptr_t{0x80000001});
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(std::uintptr_t{0x80000002});

// Scroll codes, message and key numbers, menu flags: Windows' published values.
enum : UINT {
  SB_LINEUP = 0,
  SB_LINEDOWN = 1,
  SB_PAGEUP = 2,
  SB_PAGEDOWN = 3,
  SB_THUMBPOSITION = 4,
  SB_THUMBTRACK = 5,
  SB_TOP = 6,
  SB_BOTTOM = 7,
  SB_ENDSCROLL = 8,
};
enum : UINT {
  WM_KEYDOWN = 0x100,
  WM_KEYUP = 0x101,
  WM_CHAR = 0x102,
  WM_TIMER = 0x113,
  WM_MOUSEMOVE = 0x200,
  WM_LBUTTONDOWN = 0x201,
  WM_LBUTTONUP = 0x202,
  WM_LBUTTONDBLCLK = 0x203,
  WM_RBUTTONDOWN = 0x204,
  WM_RBUTTONUP = 0x205,
  WM_RBUTTONDBLCLK = 0x206,
  WM_MBUTTONDOWN = 0x207,
  WM_MBUTTONUP = 0x208,
  WM_MOUSEWHEEL = 0x20A,
  WM_CAPTURECHANGED = 0x215,
};
enum : int {
  VK_TAB = 0x09,
  VK_RETURN = 0x0D,
  VK_SHIFT = 0x10,
  VK_CONTROL = 0x11,
  VK_ESCAPE = 0x1B,
  VK_SPACE = 0x20,
  VK_DELETE = 0x2E,
  VK_F1 = 0x70,
  VK_F4 = 0x73,
  VK_F7 = 0x76,
  VK_F12 = 0x7B,
  VK_OEM_PLUS = 0xBB,
  VK_OEM_MINUS = 0xBD,
  VK_OEM_3 = 0xC0,  // backquote
};
enum : WPARAM {
  MK_SHIFT = 0x04,
  MK_CONTROL = 0x08,
  MK_MBUTTON = 0x10,
};

constexpr WORD LOWORD(std::uintptr_t value) { return static_cast<WORD>(value); }
constexpr WORD HIWORD(std::uintptr_t value) { return static_cast<WORD>(value >> 16); }
#endif
