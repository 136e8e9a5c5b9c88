// What the host remembers about a palette between sessions, one registry key a tool identifier. The
// side on which a palette is docked is not here: palettes give it themselves when they come up.
#pragma once

#include "afxwin.h"

struct PaletteState {
  bool known = false;
  bool floating = false;
  CRect frame;   // of the floating frame, on the screen
  CSize docked;  // size while docked
};

namespace devhost {

// The key under HKEY_CURRENT_USER, "Software\DevHost\Palettes" until it is set; a host with
// profiles sets one for each.
void SetPaletteStoreKey(const CString& key);
const CString& PaletteStoreKey();

PaletteState LoadPaletteState(const CLSID& tool);
void SavePaletteState(const CLSID& tool, const PaletteState& state);

}  // namespace devhost
