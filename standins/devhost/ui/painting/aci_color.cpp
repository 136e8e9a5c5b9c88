// Indexed colours: nine named ones, 24 hues in five strengths with a pale variant each, six greys.
#include "devhost/ui/painting/aci_color.h"

#include <cmath>

namespace devhost {
namespace {

constexpr COLORREF kNamed[] = {RGB(255, 0, 0),     RGB(255, 255, 0),   RGB(0, 255, 0),
                               RGB(0, 255, 255),   RGB(0, 0, 255),     RGB(255, 0, 255),
                               RGB(255, 255, 255), RGB(128, 128, 128), RGB(192, 192, 192)};
constexpr int kStrength[] = {255, 165, 127, 76, 38};
constexpr int kGrey[] = {51, 91, 132, 173, 214, 255};

// The level of a channel, 0 to 1, for a hue in degrees; `centre` is the hue of the channel.
double Channel(double hue, double centre) {
  double away = std::fabs(hue - centre);
  if (away > 180) away = 360 - away;
  if (away <= 60) return 1;
  return away >= 120 ? 0 : (120 - away) / 60;
}

COLORREF HueColor(double hue, int strength, bool pale) {
  const auto level = [&](double centre) {
    const double c = Channel(hue, centre);
    return static_cast<int>(std::lround(strength * (pale ? (1 + c) / 2 : c)));
  };
  return RGB(level(0), level(120), level(240));
}

}  // namespace

COLORREF ColorOfAci(int number, bool darkGround) {
  if (number < 1 || number > 255) number = 7;
  if (number == 7 && !darkGround) return RGB(0, 0, 0);
  if (number <= 9) return kNamed[number - 1];
  if (number >= 250) return RGB(kGrey[number - 250], kGrey[number - 250], kGrey[number - 250]);
  return HueColor((number / 10 - 1) * 15.0, kStrength[number % 10 / 2], number % 2 != 0);
}

}  // namespace devhost
