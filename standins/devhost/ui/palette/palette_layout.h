// The parts of a docked palette, and when a floating one rolls up: plain decisions for the palette
// windows. Rectangles are in the palette's client coordinates.
#pragma once

#include "ground/plain_types.h"

struct PaletteParts {
  RECT caption;  // the strip along the top; empty while floating, where the frame has one
  RECT gripper;  // dots at its left end
  RECT title;
  RECT close;  // empty where there is no room for it
  RECT line;   // one pixel along the inner edge; empty without border
  RECT used;   // for the content
};

// `borders` holds CBRS_BORDER_ bits.
PaletteParts LayOutPalette(SIZE client, bool floating, int captionHeight, DWORD borders);

enum class PaletteHit { kContent, kCaption, kClose };
PaletteHit HitPalette(const PaletteParts& parts, POINT point);

// One tick of the roll-up watch (every kRollTick milliseconds). Rolling up waits until the pointer
// has been away for kRollPatience ticks, rolling out happens at once. Nothing moves while it is
// held.
constexpr int kRollTick = 100, kRollPatience = 5;
enum class RollStep { kStay, kRollUp, kRollOut };
RollStep NextRollStep(bool rolledUp, bool pointerInside, bool held, int* ticksOutside);
