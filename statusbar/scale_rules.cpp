#include "statusbar/scale_rules.h"

#include <cwchar>

#include "resources/resource_ids.h"

namespace qvx {
namespace {

struct ScaleLine {
  unsigned command;
  double scale;
};

constexpr ScaleLine kLines[] = {
    {ID_SCALE_0_5, 0.5}, {ID_SCALE_1, 1},     {ID_SCALE_2, 2},     {ID_SCALE_5, 5},
    {ID_SCALE_10, 10},   {ID_SCALE_20, 20},   {ID_SCALE_25, 25},   {ID_SCALE_30, 30},
    {ID_SCALE_50, 50},   {ID_SCALE_100, 100}, {ID_SCALE_150, 150}, {ID_SCALE_200, 200},
    {ID_SCALE_250, 250}, {ID_SCALE_300, 300}, {ID_SCALE_500, 500}, {ID_SCALE_1000, 1000},
};

}  // namespace

std::optional<double> ScaleOfCommand(unsigned command) {
  for (const ScaleLine& line : kLines)
    if (line.command == command) return line.scale;
  return {};
}

TWCString ScalePaneText(double drawingScale, const ScaleWalk& selection) {
  TWCString text(L"比例 1:");
  if (selection.IsMixed()) return text += L"***";
  return text << (selection.Common() > 0 ? selection.Common() : drawingScale);
}

bool IsScaleText(const wchar_t* text) {
  constexpr wchar_t kBlanks[] = L" \t";
  constexpr wchar_t kOfNumbers[] = L"+-.0123456789eE";
  text += std::wcsspn(text, kBlanks);
  wchar_t* end = nullptr;
  const double value = std::wcstod(text, &end);
  return end != text && text + std::wcsspn(text, kOfNumbers) >= end && std::isfinite(value) &&
         end[std::wcsspn(end, kBlanks)] == 0;
}

}  // namespace qvx
