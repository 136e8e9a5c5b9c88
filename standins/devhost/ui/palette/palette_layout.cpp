// Layout of palettes; see the header.
#include "devhost/ui/palette/palette_layout.h"

#include <algorithm>

namespace {

constexpr DWORD kBorderLeft = 0x0100, kBorderTop = 0x0200, kBorderRight = 0x0400,
                kBorderBottom = 0x0800;
constexpr int kGripperWidth = 9;
constexpr int kMinTitle = 12;  // if narrower, the title is omitted and the close box kept

bool Holds(const RECT& rect, POINT point) {
  return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
         point.y < rect.bottom;
}

RECT TakeLine(RECT* rest, DWORD borders) {
  RECT line{};
  if (borders & kBorderRight) {
    line = *rest;
    line.left = --rest->right;
  } else if (borders & kBorderLeft) {
    line = *rest;
    line.right = ++rest->left;
  } else if (borders & kBorderBottom) {
    line = *rest;
    line.top = --rest->bottom;
  } else if (borders & kBorderTop) {
    line = *rest;
    line.bottom = ++rest->top;
  }
  return line;
}

}  // namespace

PaletteParts LayOutPalette(SIZE client, bool floating, int captionHeight, DWORD borders) {
  PaletteParts parts{};
  parts.used = {0, 0, std::max<LONG>(0, client.cx), std::max<LONG>(0, client.cy)};
  if (floating) return parts;
  if (client.cx > 0 && client.cy > 0) parts.line = TakeLine(&parts.used, borders);
  parts.caption = parts.used;
  parts.caption.bottom = std::min<LONG>(parts.used.bottom, parts.used.top + captionHeight);
  parts.used.top = parts.caption.bottom;

  RECT rest = parts.caption;
  const LONG box = captionHeight - 4;
  if (rest.right - rest.left >= box + 4) {
    parts.close = {rest.right - box - 2, rest.top + 2, rest.right - 2, rest.top + 2 + box};
    rest.right = parts.close.left;
  }
  if (rest.right - rest.left >= kGripperWidth) {
    parts.gripper = {rest.left, rest.top, rest.left + kGripperWidth, rest.bottom};
    rest.left = parts.gripper.right;
  }
  if (rest.right - rest.left >= kMinTitle) parts.title = rest;
  return parts;
}

PaletteHit HitPalette(const PaletteParts& parts, POINT point) {
  if (Holds(parts.close, point)) return PaletteHit::kClose;
  if (Holds(parts.caption, point)) return PaletteHit::kCaption;
  return PaletteHit::kContent;
}

RollStep NextRollStep(bool rolledUp, bool pointerInside, bool held, int* ticksOutside) {
  if (held) {
    *ticksOutside = 0;
    return RollStep::kStay;
  }
  if (pointerInside) {
    *ticksOutside = 0;
    return rolledUp ? RollStep::kRollOut : RollStep::kStay;
  }
  if (rolledUp) return RollStep::kStay;
  return ++*ticksOutside >= kRollDelayTicks ? RollStep::kRollUp : RollStep::kStay;
}
