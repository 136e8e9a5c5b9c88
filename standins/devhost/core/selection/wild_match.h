// Wild-card patterns of selection filters and acutWcMatch.
#pragma once

#include <string>

namespace devhost {

// The patterns are those of ground/wild_card.h.
bool WildMatch(const std::wstring& text, const std::wstring& patterns);

}  // namespace devhost
