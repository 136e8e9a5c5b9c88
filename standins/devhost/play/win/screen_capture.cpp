// Capturing the screen; see the header.
#include "devhost/play/win/screen_capture.h"

#include "afx.h"
#include "devhost/core/base/utf8.h"
#include "devhost/play/script_text.h"

namespace devhost {
namespace {

class ScreenDc {
 public:
  ScreenDc() : m_dc(GetDC(nullptr)) {}
  ~ScreenDc() { ReleaseDC(nullptr, m_dc); }
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  operator HDC() const { return m_dc; }

 private:
  HDC m_dc;
};

// A memory device context with a 32-bit top-down bitmap.
class CaptureBitmap {
 public:
  CaptureBitmap(HDC like, int width, int height) : m_dc(CreateCompatibleDC(like)) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    m_bitmap = CreateDIBSection(like, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
    if (m_bitmap) m_before = SelectObject(m_dc, m_bitmap);
  }
  ~CaptureBitmap() {
    if (m_bitmap) SelectObject(m_dc, m_before);
    if (m_bitmap) DeleteObject(m_bitmap);
    DeleteDC(m_dc);
  }
  CaptureBitmap(const CaptureBitmap&) = delete;
  CaptureBitmap& operator=(const CaptureBitmap&) = delete;
  HDC Dc() const { return m_dc; }
  const std::uint8_t* Bits() const { return static_cast<const std::uint8_t*>(m_bits); }

 private:
  HDC m_dc;
  HBITMAP m_bitmap = nullptr;
  HGDIOBJ m_before = nullptr;
  void* m_bits = nullptr;
};

}  // namespace

Picture CaptureScreen() {
  const ScreenDc screen;
  const int left = GetSystemMetrics(SM_XVIRTUALSCREEN), top = GetSystemMetrics(SM_YVIRTUALSCREEN);
  Picture picture;
  picture.width = GetSystemMetrics(SM_CXVIRTUALSCREEN);
  picture.height = GetSystemMetrics(SM_CYVIRTUALSCREEN);
  const CaptureBitmap copy(screen, picture.width, picture.height);
  if (!copy.Bits() || !BitBlt(copy.Dc(), 0, 0, picture.width, picture.height, screen, left, top,
                              SRCCOPY | CAPTUREBLT))
    return {};
  GdiFlush();
  const auto pixels =
      static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  picture.rgb.reserve(pixels * 3);
  for (const std::uint8_t* at = copy.Bits(); at < copy.Bits() + pixels * 4; at += 4)
    picture.rgb.insert(picture.rgb.end(), {at[2], at[1], at[0]});
  return picture;
}

std::string SavePng(const Picture& picture, const std::wstring& path) {
  const std::string png = EncodePng(picture);
  if (png.empty()) return "the screen can't be read";
  try {
    CFile file(path.c_str(), CFile::modeCreate | CFile::modeWrite);
    file.Write(png.data(), static_cast<UINT>(png.size()));
    file.Close();
    return {};
  } catch (CFileException* exception) {
    const std::string code = std::to_string(exception->m_lOsError);
    exception->Delete();
    return "can't write " + QuotedForScript(Utf8(path)) + ", error " + code;
  }
}

}  // namespace devhost
