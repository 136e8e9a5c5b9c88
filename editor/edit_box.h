// The place and the size of the in-place editor's box. Pixels are of the client area of the box's
// parent, except where a comment says otherwise.
#pragma once

#include <optional>
#include <string>

#include "editor/edit_control.h"
#include "gepnt3d.h"

namespace qvx {

// Hosts between these releases, both excluded, have the box in their frame; the others have it in
// the drawing view.
constexpr double kLastHostWithMovingBox = 18.11;
constexpr double kFirstHostWithBoxInView = 24.1;
BoxParent ParentOfBox(double hostVersion);

// False for corners that coincide or are in the wrong order: the text has no size in the drawing.
bool HasUsableExtent(const AcGePoint3d& lower, const AcGePoint3d& upper);

// The text on the drawing view, in its client pixels.
struct TextPlace {
  RECT box;
  POINT centre;
};
TextPlace PlaceOfText(POINT lower, POINT upper);

// The box at its opening, ahead of any growth. `letterHeight`: of "a", without the box's font.
RECT FirstBox(POINT centre, int letterHeight);
RECT WithLeftEdgeAt(const RECT& box, LONG left);

// Width in pixels above which one-line text is wrapped. `screenWidth`: x of SCREENSIZE, 0 when it
// can't be read.
int WidthLimit(double screenWidth);

// Right and bottom edge excluded.
bool Contains(const RECT& area, POINT point);
POINT CentreOf(const RECT& box);

// The size that the text needs. `byLines`: split at line feeds; a return stays in its line and has
// a width.
SIZE NeededSize(const std::wstring& text, bool byLines, SIZE parent, TextMeasure& measure);
// The box never shrinks. It grows at the right and bottom, or with `centre` on both sides.
RECT GrownBox(const RECT& box, SIZE needed, bool centre);
// Shifts the box 5 pixels inside its parent, at the left, right, top, then bottom. Deliberate: in a
// parent that is too small the later shift wins.
RECT ShiftedInside(const RECT& box, const RECT& parent);
// One line higher, or nothing when the parent has no room for it.
std::optional<RECT> BoxWithLineMore(const RECT& box, int letterHeight, const RECT& parent);
// The same size around another centre.
RECT CentredBox(const RECT& box, POINT centre);

bool IsSameBox(const RECT& a, const RECT& b);

}  // namespace qvx
