// Zooms about the point under the pointer, by a key.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

class FilterHost;

// True swallows the key. The caller has checked key, setting and state of the host.
bool ZoomAtCursor(FilterHost& host, POINT screen, double factor);

}  // namespace qvx
