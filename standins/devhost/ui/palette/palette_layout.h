// The parts of a docked palette, and the rule for rolling up floating ones. Rectangles are in
// client coordinates.
#pragma once

#include "ground/plain_types.h"

struct PaletteParts {
  RECT caption;  // along the top; empty while floating, where the frame has a caption
  RECT gripper;  // dots at the left of the caption
  RECT title;
  RECT close;  // empty if there is no room
  RECT line;   // one pixel along the inner edge; empty without border
  RECT used;   // for the content
};

// `borders` holds CBRS_BORDER_ bits.
PaletteParts LayOutPalette(SIZE client, bool floating, int captionHeight, DWORD borders);

enum class PaletteHit { kContent, kCaption, kClose };
PaletteHit HitPalette(const PaletteParts& parts, POINT point);

// One tick of the roll-up timer (every kRollTick milliseconds). A palette rolls up after the
// pointer has been outside for kRollDelayTicks ticks and rolls out at once. No change while a
// button is held.
constexpr int kRollTick = 100, kRollDelayTicks = 5;
enum class RollStep { kStay, kRollUp, kRollOut };
RollStep NextRollStep(bool rolledUp, bool pointerInside, bool held, int* ticksOutside);
