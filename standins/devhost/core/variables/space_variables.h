// TILEMODE, CVPORT and CTAB, and which space of a drawing is current.
#pragma once

#include <string>

namespace devhost {

class Document;

// Leaving or entering paper space takes the viewport and the tab along; which space is current
// follows from both.
void FollowSpace(Document& document, const std::wstring& name, const std::wstring& value);

}  // namespace devhost
