// At the width that the host stores first, no label of the product's palette is cut.
#include <nlohmann/json.hpp>

#include "devhost/core/base/utf8.h"
#include "devhost/ui/launch/first_width.h"
#include "tests/module/win/module_test.h"

namespace {

// Left of the text in a row.
constexpr int kBeforeText = 28;

int WidthOf(const std::wstring& text) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const HDC dc = ::CreateCompatibleDC(nullptr);
  const HFONT font = ::CreateFontIndirectW(&metrics.lfMenuFont);
  const HGDIOBJ old = ::SelectObject(dc, font);
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  ::SelectObject(dc, old);
  ::DeleteObject(font);
  ::DeleteDC(dc);
  return size.cx;
}

int CheckRows(const nlohmann::json& rows) {
  int count = 0;
  for (const auto& row : rows) {
    const std::string text = row.value("label", "");
    const int width = row["rect"][2].get<int>() - row["rect"][0].get<int>();
    if (!text.empty() && width > 0) {
      EXPECT_LE(kBeforeText + WidthOf(devhost::Wide(text)), width) << text;
      ++count;
    }
    if (row.contains("rows")) count += CheckRows(row["rows"]);
  }
  return count;
}

class FirstWidth : public Module {};

TEST_F(FirstWidth, CutsNoLabelOfTheProductMenu) {
  wchar_t path[512] = L"";
  ::GetModuleFileNameW(nullptr, path, 512);
  const std::wstring file = path;
  const int width =
      devhost::FirstPaletteWidth(file.substr(0, file.find_last_of(L"\\/") + 1) + L"product");
  EXPECT_GT(width, 76);
  HostProcess::Get().CopyProductFile(L"qvx.qmn");
  SetNumber(L"Settings\\ScreenMenu", L"SizeX", width);
  SetNumber(L"Settings\\ScreenMenu", L"Visible", 1);
  ASSERT_TRUE(LoadModule());
  BringUp();
  const auto shell = nlohmann::json::parse(Shell(), nullptr, false);
  ASSERT_TRUE(shell.contains("screenmenu")) << Shell();
  EXPECT_GT(CheckRows(shell["screenmenu"]["rows"]), 10);
  Forget(L"Settings\\ScreenMenu", L"SizeX");
}

}  // namespace
