// Indexed colours of drawings as screen colours on a dark or light background.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

// 1 to 255; other numbers count as 7, the contrast to the background
COLORREF ColorOfAci(int number, bool darkGround);

}  // namespace devhost
