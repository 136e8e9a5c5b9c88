// The variables TILEMODE, CVPORT and CTAB determine the current space of a drawing.
#pragma once

#include <string>

namespace devhost {

class Document;

// Call after `name` was set. TILEMODE also sets CVPORT and CTAB; then the current
// space is determined.
void UpdateCurrentSpace(Document& document, const std::wstring& name, const std::wstring& value);

}  // namespace devhost
