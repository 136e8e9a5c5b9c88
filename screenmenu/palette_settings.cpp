// See palette_settings.h.
#include "screenmenu/palette_settings.h"

#include <cstdlib>

#include "ground/product_registry.h"
#include "screenmenu/edge_drag.h"
#include "screenmenu/group_rules.h"

namespace qvx {
namespace {

constexpr unsigned kAlignLeft = 0x1420;   // CBRS_ALIGN_LEFT, CBRS_BORDER_RIGHT, CBRS_FLYBY
constexpr unsigned kAlignRight = 0x4120;  // CBRS_ALIGN_RIGHT, CBRS_BORDER_LEFT, CBRS_FLYBY

// One for each product number from 1.
constexpr ToolId RowOf(unsigned short data2) {
  return {0x91239E2F, data2, 0x4165, {0x99, 0x85, 0xC6, 0x46, 0x26, 0x9F, 0x2B, 0xFD}};
}
constexpr ToolId kToolIds[] = {RowOf(0x4861), RowOf(0x4862), RowOf(0x4863), RowOf(0x4864),
                               RowOf(0x4865), RowOf(0x4866), RowOf(0x4867), RowOf(0x4868),
                               RowOf(0x4869), RowOf(0x486A), RowOf(0x486B)};

}  // namespace

int UsableWidth(int saved, int screenWidth) {
  return saved > 0 && saved <= screenWidth ? saved : kPaletteFirstWidth;
}

void LoadPaletteSettings(PaletteSettings& settings) {
  const TRegProperty key = ScreenMenuKey();
  key.GetValue(L"Alignment", settings.alignment);
  key.GetValue(L"SizeX", settings.sizeX);
  key.GetValue(L"LimitHeight", settings.limitHeight);
  key.GetValue(L"DefaultOpenFirst", settings.defaultOpenFirst);
  key.GetValue(L"ScrollBar", settings.scrollBar);
}

void SavePaletteSize(int width, int height) {
  TRegProperty key = ScreenMenuKey();
  key.SetValue(L"SizeX", width);
  key.SetValue(L"SizeY", height);
}

void SavePaletteState(const PaletteState& state) {
  TRegProperty key = ScreenMenuKey();
  key.SetValue(L"Visible", state.visible);
  key.SetValue(L"Alignment", state.alignment);
  key.SetValue(L"SizeX", static_cast<int>(state.size.cx));
  key.SetValue(L"SizeY", static_cast<int>(state.size.cy));
  key.SetValue(L"LimitHeight", state.limitHeight);
  key.SetValue(L"DefaultOpenFirst", state.defaultOpenFirst);
  key.SetValue(L"ScrollBar", state.scrollBar);
}

int LoadActiveSubMenu() {
  int openIndex = kNothingOpen;
  ScreenMenuKey().GetValue(L"ActiveSubMenu", openIndex);
  return openIndex;
}

void SaveActiveSubMenu(int openIndex) { ScreenMenuKey().SetValue(L"ActiveSubMenu", openIndex); }

int AlignmentOf(const RECT& palette, const RECT& frameClient) {
  const LONG fromLeft = palette.left - frameClient.left;
  const LONG fromRight = palette.right - frameClient.right;
  return std::abs(fromLeft) <= std::abs(fromRight) ? 1 : 0;
}

DockChoice DockFor(int alignment) {
  if (alignment) return {kAlignLeft, kDockLeft};
  return {kAlignRight, kDockRight};
}

bool HasToolId(int product) {
  return product >= 1 && product <= static_cast<int>(sizeof kToolIds / sizeof kToolIds[0]);
}

const ToolId& ToolIdOf(int product) { return kToolIds[product - 1]; }

}  // namespace qvx
