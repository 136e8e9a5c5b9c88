// A canvas on which the real code draws rows of a pop-up, with a fixed font and fixed system
// colours. Untouched pixels have a colour that no row uses.
#pragma once

#include <string>

#include "devhost/play/png_image.h"
#include "popup/win/bitmap_menu.h"

class RowCanvas {
 public:
  static constexpr COLORREF kUntouched = RGB(255, 0, 255);
  // Fixed and all different, so that a wrong colour is detected.
  static constexpr COLORREF kMenu = RGB(212, 208, 200), kHighlight = RGB(10, 36, 106);
  static constexpr COLORREF kMenuText = RGB(1, 2, 3), kHighlightText = RGB(255, 255, 225);
  static constexpr COLORREF kGrayText = RGB(120, 120, 110), kLight = RGB(250, 250, 250);
  static constexpr COLORREF kShadow = RGB(90, 90, 80), kFace = RGB(200, 204, 208);
  static constexpr COLORREF kIconColor = RGB(200, 0, 0);

  RowCanvas(int width, int height);
  ~RowCanvas();
  RowCanvas(const RowCanvas&) = delete;
  RowCanvas& operator=(const RowCanvas&) = delete;

  // Draws one row with the given ODS_ flags.
  void Draw(const RECT& row, const wchar_t* label, UINT state, HBITMAP icon = nullptr);
  COLORREF At(int x, int y) const { return ::GetPixel(m_dc, x, y); }
  devhost::Picture Picture() const;

  // An icon of this size in the face colour with a frame in kIconColor.
  static qvx::OwnedBitmap MakeIcon(int size = 16);

 private:
  HDC m_dc;
  HBITMAP m_bitmap;
  HGDIOBJ m_before;
  int m_width, m_height;
};

// Fixes menu font and system colours while it exists.
class PinnedLook {
 public:
  explicit PinnedLook(const wchar_t* face = L"MS Sans Serif", int height = -11);
  ~PinnedLook();
  PinnedLook(const PinnedLook&) = delete;
  PinnedLook& operator=(const PinnedLook&) = delete;

 private:
  static constexpr int kCount = 8;
  NONCLIENTMETRICSW m_metrics{};
  COLORREF m_colors[kCount];
};
