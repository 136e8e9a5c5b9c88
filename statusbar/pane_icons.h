// The icons of the panes, from the module's own resources. Loaded with LR_SHARED: the same handle
// at every call, freed by the system with the module.
#pragma once

#include "ground/win/module_handle.h"

namespace qvx {

inline constexpr int kPaneIconSize = 16;

inline HICON PaneIcon(int id) {
  return static_cast<HICON>(::LoadImageW(ThisModule(), MAKEINTRESOURCEW(id), IMAGE_ICON,
                                         kPaneIconSize, kPaneIconSize, LR_SHARED));
}

}  // namespace qvx
