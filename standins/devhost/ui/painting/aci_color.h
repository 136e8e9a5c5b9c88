// The numbered colours of drawings as colours of the screen, on a dark or a light ground. No
// window.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

// 1 to 255; any other number is shown like 7, which is the contrast to the ground.
COLORREF ColorOfAci(int number, bool darkGround);

}  // namespace devhost
