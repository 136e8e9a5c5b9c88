// The table of the value kinds of DXF group codes. The menu parser, the compiled file and the value
// chains all use it, so that a mask is the same from source and from a compiled file.
#include "adsdef.h"
#include "kernel/qvxexport.h"

namespace {
struct CodeRange {
  int first, last;
  short type;
};
constexpr CodeRange kRanges[] = {
    {0, 9, RTSTR},       {10, 59, RTREAL},     {60, 79, RTSHORT},     {90, 99, RTLONG},
    {100, 100, RTSTR},   {102, 102, RTSTR},    {105, 105, RTSTR},     {110, 149, RTREAL},
    {170, 179, RTSHORT}, {210, 239, RTREAL},   {270, 299, RTSHORT},   {300, 309, RTSTR},
    {370, 389, RTSHORT}, {400, 409, RTSHORT},  {410, 419, RTSTR},     {420, 429, RTLONG},
    {430, 439, RTSTR},   {440, 459, RTLONG},   {460, 469, RTREAL},    {470, 479, RTSTR},
    {999, 1009, RTSTR},  {1010, 1059, RTREAL}, {1060, 1070, RTSHORT}, {1071, 1071, RTLONG},
};
}  // namespace

short QvxExport::TypeOfCode(int dxfCode) {
  for (const CodeRange& range : kRanges) {
    if (dxfCode < range.first) break;
    if (dxfCode <= range.last) return range.type;
  }
  return RTNONE;
}
