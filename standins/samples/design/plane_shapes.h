// Plane geometry of the commands. Lengths are drawing units, angles radians.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "gepnt3d.h"

struct Arc {
  AcGePoint3d center;
  double radius = 0, from = 0, sweep = 0;  // sweep is negative for clockwise
};

AcGePoint3d OnCircle(const AcGePoint3d& center, double radius, double angle);
AcGeVector3d LeftOf(const AcGeVector3d& along);
double DotOf(const AcGeVector3d& a, const AcGeVector3d& b);

// From `start` through `middle` to `end`; nothing if they are on one line.
std::optional<Arc> ArcThrough(const AcGePoint3d& start, const AcGePoint3d& middle,
                              const AcGePoint3d& end);
// Points of the arc at most 10 degrees apart, both ends included.
std::vector<AcGePoint3d> ChordsOf(const Arc& arc);

// Where the segment from `a` to `b` crosses the one from `c` to `d`, as a part of the way from `a`.
std::optional<double> Crossing(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& c,
                               const AcGePoint3d& d);

// The name of the next axis: the next number, or the next letter without I, O and Z.
std::wstring NextAxisName(const std::wstring& name);
