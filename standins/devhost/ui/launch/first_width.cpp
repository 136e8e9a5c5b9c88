// Measuring and storing the first width; see the header.
#include "devhost/ui/launch/first_width.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "devhost/ui/launch/launch_options.h"

namespace devhost {

namespace {

// Around the text of a row: the image column and insets, the scroll bar, the palette's edges, and a
// few pixels to spare.
constexpr int kAroundText = 52;
constexpr unsigned kProductPage = 936;

// UTF-8 if the bytes are valid as such, otherwise the code page of the product's menus.
std::wstring Decoded(const std::string& bytes) {
  const int size = static_cast<int>(bytes.size());
  for (const auto& [page, flags] : {std::pair<unsigned, DWORD>{CP_UTF8, MB_ERR_INVALID_CHARS},
                                    std::pair<unsigned, DWORD>{kProductPage, 0}}) {
    const int length = ::MultiByteToWideChar(page, flags, bytes.data(), size, nullptr, 0);
    if (length <= 0) continue;
    std::wstring text(length, L'\0');
    ::MultiByteToWideChar(page, flags, bytes.data(), size, text.data(), length);
    return text;
  }
  return L"";
}

std::wstring SourceIn(const std::wstring& folder) {
  std::ifstream file(std::filesystem::path(folder) / L"qvx.qmn", std::ios::binary);
  return Decoded({std::istreambuf_iterator<char>(file), {}});
}

int WidestText(const std::vector<std::wstring>& texts) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const HDC dc = ::CreateCompatibleDC(nullptr);
  const HFONT font = ::CreateFontIndirectW(&metrics.lfMenuFont);
  const HGDIOBJ old = ::SelectObject(dc, font);
  LONG widest = 0;
  for (const std::wstring& text : texts) {
    SIZE size{};
    if (::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size))
      widest = std::max(widest, size.cx);
  }
  ::SelectObject(dc, old);
  ::DeleteObject(font);
  ::DeleteDC(dc);
  return static_cast<int>(widest);
}

}  // namespace

int FirstPaletteWidth(const std::wstring& productFolder) {
  const std::vector<std::wstring> labels = PaletteLabels(SourceIn(productFolder));
  return labels.empty() ? 0 : WidestText(labels) + kAroundText;
}

void StoreFirstPaletteWidth(const LaunchOptions& options) {
  wchar_t key[100];
  std::swprintf(key, 100, L"Software\\Quivera\\QVX\\R%.1f\\QVX-1\\Settings\\ScreenMenu",
                options.hostVersion);
  if (::RegGetValueW(HKEY_CURRENT_USER, key, L"SizeX", RRF_RT_ANY, nullptr, nullptr, nullptr) ==
      ERROR_SUCCESS)
    return;
  const DWORD width = FirstPaletteWidth(options.productFolder);
  if (width) ::RegSetKeyValueW(HKEY_CURRENT_USER, key, L"SizeX", REG_DWORD, &width, sizeof width);
}

}  // namespace devhost
