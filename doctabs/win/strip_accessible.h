// The strip for screen readers: a list of page tabs. The tabs are no windows, so the window
// system's own object knows nothing of them.
#pragma once

#include "afxwin.h"

class TabStrip;
struct IAccessible;

// Posted to the strip with a tab's index: the reader asks for its default action.
constexpr UINT kActivateTabMessage = WM_APP + 1;

// Created at the first request. Clients in other processes are disconnected when the strip's window
// goes: the object's code may be unloaded after that.
class StripAccess {
 public:
  StripAccess() = default;
  ~StripAccess() { Disconnect(); }
  StripAccess(const StripAccess&) = delete;
  StripAccess& operator=(const StripAccess&) = delete;

  // The result of WM_GETOBJECT for the client object. `strip` is used until Disconnect.
  LRESULT Answer(HWND window, const TabStrip& strip, WPARAM wParam);
  void Disconnect();

 private:
  class StripAccessible* m_object = nullptr;  // owned by reference
};
