// Titles by release; see the header. Before release 21 some years have two releases.
#include "devhost/ui/launch/host_title.h"

namespace devhost {

std::wstring HostTitle(double release) {
  struct Row {
    double from;
    int year;
  };
  constexpr Row kRows[] = {
      {24.25, 2024}, {24.15, 2023}, {24.05, 2022}, {23.95, 2021}, {23.05, 2020}, {22.95, 2019},
      {21.95, 2018}, {20.95, 2017}, {20.05, 2016}, {19.95, 2015}, {19.05, 2014}, {18.95, 2013},
      {18.15, 2012}, {18.05, 2011}, {17.95, 2010}, {17.15, 2009}, {17.05, 2008}, {16.95, 2007},
      {16.15, 2006}, {16.05, 2005}, {15.95, 2004}};
  for (const Row& row : kRows)
    if (release >= row.from) return L"DevHost " + std::to_wstring(row.year);
  return L"DevHost 2002";
}

}  // namespace devhost
