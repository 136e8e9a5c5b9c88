// See wild_match.h. Also acutWcMatch.
#include "devhost/core/selection/wild_match.h"

#include "adslib.h"
#include "ground/wild_card.h"

namespace devhost {

bool WildMatch(const std::wstring& text, const std::wstring& patterns) {
  return WildCard(patterns).Matches(MatchCase(std::wstring_view(text)));
}

}  // namespace devhost

int acutWcMatch(const ACHAR* text, const ACHAR* patterns) {
  return text && patterns && devhost::WildMatch(text, patterns) ? RTNORM : RTERROR;
}
