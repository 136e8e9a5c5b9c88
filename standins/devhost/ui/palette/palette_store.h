// States of palettes between sessions, one registry key for each tool identifier. The side of
// docking is not stored: palettes set it themselves at the start.
#pragma once

#include "afxwin.h"

struct PaletteState {
  bool known = false;
  bool floating = false;
  CRect frame;   // of the floating frame in screen coordinates
  CSize docked;  // size while docked
};

namespace devhost {

// The key under HKEY_CURRENT_USER, initially "Software\DevHost\Palettes". A host with profiles sets
// one for each.
void SetPaletteStoreKey(const CString& key);
const CString& PaletteStoreKey();

PaletteState LoadPaletteState(const CLSID& tool);
void SavePaletteState(const CLSID& tool, const PaletteState& state);

}  // namespace devhost
