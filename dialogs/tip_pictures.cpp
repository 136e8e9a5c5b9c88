#include "dialogs/tip_pictures.h"

namespace qvx {

namespace {

// Steps of the scale that a bitmap is drawn for, added to the first resource number.
constexpr int kNormal = 0;
constexpr int kFiveQuarters = 30100;
constexpr int kThreeHalves = 30200;
constexpr int kDouble = 30300;

// Deliberate: at 193 dots per inch, alone above 144, the small pictures are shown unstretched. The
// user sees them in the corner of their places.
constexpr int kOddOne = 193;

int StepOf(int dotsPerInch) {
  if (dotsPerInch <= 96 || dotsPerInch == kOddOne) return kNormal;
  if (dotsPerInch <= 120) return kFiveQuarters;
  return dotsPerInch <= 144 ? kThreeHalves : kDouble;
}

}  // namespace

int TipPictureNumber(int family, int dotsPerInch) { return family + StepOf(dotsPerInch); }

bool StretchesTipPicture(int dotsPerInch) { return dotsPerInch > kOddOne; }

}  // namespace qvx
