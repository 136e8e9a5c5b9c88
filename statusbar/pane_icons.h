// The icons of the panes, from the module's own resources. They are shared ones of the system:
// asked for again they are the same handle, and they go with the module, so nobody frees them.
#pragma once

#include "ground/win/module_handle.h"

namespace qvx {

inline constexpr int kPaneIconSize = 16;

inline HICON PaneIcon(int id) {
  return static_cast<HICON>(::LoadImageW(ThisModule(), MAKEINTRESOURCEW(id), IMAGE_ICON,
                                         kPaneIconSize, kPaneIconSize, LR_SHARED));
}

}  // namespace qvx
