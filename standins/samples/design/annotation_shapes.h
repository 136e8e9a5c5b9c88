// Lines that several annotations are drawn with.
#pragma once

#include <vector>

#include "acgi.h"

void DrawLine(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b);
void DrawBox(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b);  // two corners
void DrawOutline(AcGiWorldDraw* draw, std::vector<AcGePoint3d> corners, bool closed);
// The two strokes of an arrow head of this length at `tip`, on a line that comes from `from`.
void DrawArrowHead(AcGiWorldDraw* draw, const AcGePoint3d& tip, const AcGePoint3d& from,
                   double length);
