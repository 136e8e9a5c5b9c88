// Picking an object that may be inside block references. For the main thread.
#pragma once

#include "adsdef.h"

// Rows by columns; a point is a column with 1 as its last number.
typedef ads_real ads_matrix[4][4];

// Prompts for a point, or takes that in `point` when `pointGiven` is not 0, and gives the nearest
// object there: the part of a block definition when a block reference is there, also through
// several references. `xform` maps the space of the object to the world. `references` is null for
// an object that is in no reference, else a chain of RTENAME, the innermost first; the caller frees
// it. `point` is in user coordinates.
// RTERROR with ERRNO 7 for a point without an object, with ERRNO 52 for Enter; RTCAN; RTKWORD.
int acedNEntSelP(const ACHAR* prompt, ads_name entity, ads_point point, int pointGiven,
                 ads_matrix xform, resbuf** references);
