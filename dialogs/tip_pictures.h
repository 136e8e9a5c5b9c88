// Which bitmap a picture of the tip dialog takes at the screen's dots per inch, and whether it is
// stretched to its control.
#pragma once

namespace qvx {

constexpr int kLeftPictureFamily = 5020;
constexpr int kTopPictureFamily = 129;

// The resource number of the family's bitmap.
int TipPictureNumber(int family, int dotsPerInch);

bool StretchesTipPicture(int dotsPerInch);

}  // namespace qvx
