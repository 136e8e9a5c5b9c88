// A double click in the drawing: edits the text at the point in place, or the one selected object.
#pragma once

#include "ground/plain_types.h"

class InPlaceEdit;

namespace qvx {

class FilterHost;

// True swallows the message.
bool HandleDoubleClick(FilterHost& host, InPlaceEdit& edit, const MSG& message);

}  // namespace qvx
