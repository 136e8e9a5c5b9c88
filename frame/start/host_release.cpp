#include "frame/start/host_release.h"

#include <cwchar>

namespace {

struct ValueRow {
  double above;
  const wchar_t* name;
};
constexpr ValueRow kFirstStartValues[] = {
    {18.21, L"InitStart19"}, {18.11, L"InitStart18.2"},   {18.0001, L"InitStart18.1"},
    {17.21, L"InitStart18"}, {17.11, L"InitStart17.2"},   {17.0001, L"InitStart17.1"},
    {16.9, L"InitStart17"},  {16.1001, L"InitStart16.2"}, {16.0001, L"InitStart16.1"},
    {15.9, L"InitStart16"},
};

struct TitleRow {
  double below;
  const wchar_t* text;
};
constexpr TitleRow kHostNames[] = {
    {15.99, L"AutoCAD 2002"}, {16.01, L"AutoCAD 2004"}, {16.11, L"AutoCAD 2005"},
    {16.21, L"AutoCAD 2006"}, {17.01, L"AutoCAD 2007"}, {17.11, L"AutoCAD 2008"},
    {17.21, L"AutoCAD 2009"}, {18.01, L"AutoCAD 2010"}, {18.11, L"AutoCAD 2011"},
    {18.21, L"AutoCAD 2012"},
};

const wchar_t* FirstStartValueOf(double release) {
  for (const ValueRow& row : kFirstStartValues)
    if (release > row.above) return row.name;
  return L"InitStart15";
}

const wchar_t* HostNameOf(double release) {
  for (const TitleRow& row : kHostNames)
    if (release < row.below) return row.text;
  return L"AutoCAD 2013";
}

}  // namespace

int FirstStartValueNames(double release, const wchar_t* names[2]) {
  int count = 0;
  if (release > 19.0) names[count++] = L"InitStart19.1";
  names[count++] = FirstStartValueOf(release);
  return count;
}

TWCString FrameTitle(const wchar_t* title, const wchar_t* frameText, double release) {
  TWCString text(title);
  text += L" For ";
  if (const wchar_t* hyphen = std::wcschr(frameText, L'-'))
    text.Append(frameText, static_cast<int>(hyphen - frameText) - 1);
  else
    text += HostNameOf(release);
  return text;
}
