#include "dialogs/tip_pictures.h"

namespace qvx {

namespace {

// Behind the number of the family, by the scale that the bitmap is drawn for.
constexpr int kNormal = 0;
constexpr int kFiveQuarters = 30100;
constexpr int kThreeHalves = 30200;
constexpr int kDouble = 30300;

// 193 dots is the one value above 144 that takes the small pictures, and takes them unstretched: a
// user with such a screen sees them in the corner of their places. It is meant so.
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
