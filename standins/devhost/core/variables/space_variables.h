// The variables TILEMODE, CVPORT and CTAB determine the current space and viewport of a drawing.
#pragma once

#include <string>

namespace devhost {

class Document;

// False for a value of CVPORT that is the number of no tiled viewport while those are shown.
bool IsViewportAccepted(Document* document, const std::wstring& name, const std::wstring& value);

// Call after `name` was set. TILEMODE also sets CVPORT and CTAB; then the current
// space and viewport are determined. Tiles keep their views while a sheet is shown.
void UpdateCurrentSpace(Document& document, const std::wstring& name);

}  // namespace devhost
