// The strip for screen readers: a list of page tabs. The tabs are no windows, so the window
// system's own object knows nothing of them.
#pragma once

#include "ground/win/accessible_object.h"

class TabStrip;

// Posted to the strip with a tab's index: the reader asks for its default action.
constexpr UINT kActivateTabMessage = WM_APP + 1;

class StripAccess {
 public:
  // The result of WM_GETOBJECT for the client object. `strip` is used until Disconnect.
  LRESULT Answer(HWND window, const TabStrip& strip, WPARAM wParam);
  void Disconnect() { m_holder.Disconnect(); }

 private:
  qvx::AccessibleHolder m_holder;
};
