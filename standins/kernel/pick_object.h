// Picking one object on the drawing, also inside block references, and what selections by a block
// need: the aperture and names as patterns.
#pragma once

#include "afx.h"
#include "gepnt3d.h"
#include "kernel/kernel_export.h"
#include "kernel/tentityset.h"
#include "kernel/trblist.h"
#include "kernel/tsubtext.h"

// No object was at the point, or none that the filter accepts. Enter alone is RTERROR, Escape
// RTCAN.
constexpr int kPickMissed = -5091;

// The object at the point that the user picks after the prompt. A filter without groups accepts
// everything.
QVX_KERNEL int TaPh23shdLhsj1(const CString& prompt, TEntitySet& entity, TRBList& filter);

// The same for objects inside block references. `point` is in user coordinates; `xform` maps the
// space of the object to the world. Objects in no reference are accepted with `alsoPlain` only.
// Blanks around the patterns of a type in the filter do not count.
QVX_KERNEL int TaPhsU12hdLhsj3(const CString& prompt, TEntitySet& entity, TADSGePoint3d& point,
                               AcGeMatrix3d& xform, bool alsoPlain, TRBList& filter);

// Half the side of the host's aperture in units of the current view; 0 without a view.
QVX_KERNEL double GetApertureWcs();

// Puts a back quote before each character that a pattern of the host would read as a wild card.
// True when there was one.
QVX_KERNEL bool SpringStrHasSpecialChar(CString* text);

// "QVX_*, TEXT" as "QVX_*,TEXT"; an escaped comma or blank stays.
QVX_KERNEL std::wstring TrimmedPatterns(std::wstring_view patterns);
