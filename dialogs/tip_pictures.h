// Selects the bitmap of a picture of the tip dialog for the screen's dots per inch, and whether it
// is stretched to its control.
#pragma once

namespace qvx {

constexpr int kLeftPictureFamily = 5020;
constexpr int kTopPictureFamily = 129;

// Resource number of the bitmap.
int TipPictureNumber(int family, int dotsPerInch);

bool StretchesTipPicture(int dotsPerInch);

}  // namespace qvx
