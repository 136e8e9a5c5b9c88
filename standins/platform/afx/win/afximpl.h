// Internals of the window part: the state of one thread, the maps from handles to objects and the
// application state. Not included by headers of the library.
//
// The state of the program's own thread is never freed: static window objects of modules destroy
// their windows after thread storage is released, and use the maps for it.
#pragma once

#include "../afxwin.h"
#include "../afxcmn.h"
#include "../afxpriv.h"

#include <unordered_map>
#include <vector>

// Attach enters permanent objects and Detach removes them; temporary ones are created for handles
// without an object and all deleted together. Make and Disarm are defined for each object type; a
// disarmed object does not own its handle, so deleting it keeps the handle.
template <class Object>
class AfxHandleMap {
 public:
  using MakeFunction = Object* (*)(void* handle);
  using DisarmFunction = void (*)(Object* object);
  AfxHandleMap(MakeFunction make, DisarmFunction disarm) : m_make(make), m_disarm(disarm) {}

  Object* LookupPermanent(void* handle) const {
    auto at = m_permanent.find(handle);
    return at == m_permanent.end() ? nullptr : at->second;
  }
  Object* FromHandle(void* handle) {
    if (!handle) return nullptr;
    if (Object* lasting = LookupPermanent(handle)) return lasting;
    Object*& temporary = m_temporary[handle];
    if (!temporary) temporary = m_make(handle);
    return temporary;
  }
  void SetPermanent(void* handle, Object* object) { m_permanent[handle] = object; }
  // Removes the entry only if it is this object's: a stock handle may have been
  // attached to another one since.
  void Remove(void* handle, const Object* object) {
    auto at = m_permanent.find(handle);
    if (at != m_permanent.end() && at->second == object) m_permanent.erase(at);
  }
  void DeleteTemporary() {
    auto gone = std::move(m_temporary);
    m_temporary.clear();
    for (auto& [handle, object] : gone) {
      m_disarm(object);
      delete object;
    }
  }
  std::size_t TemporaryCount() const { return m_temporary.size(); }

 private:
  std::unordered_map<void*, Object*> m_permanent;
  std::unordered_map<void*, Object*> m_temporary;
  MakeFunction m_make;
  DisarmFunction m_disarm;
};

struct AfxThreadState {
  AfxThreadState();
  AfxHandleMap<CWnd> windows;
  AfxHandleMap<CMenu> menus;
  AfxHandleMap<CDC> contexts;
  AfxHandleMap<CGdiObject> objects;
  int tempLocks = 0;

  CWnd* wndInit = nullptr;  // attached to the next window created
  HHOOK creationHook = nullptr;
  MSG lastSent{};                // message of the innermost window procedure
  HWND lockoutNotify = nullptr;  // dialog being filled: its controls' notifications are ignored
  HWND trackingWindow = nullptr;
  HMENU trackingMenu = nullptr;
  CWinThread* thread = nullptr;
  MSG current{};  // of the pump, without a thread object
  wchar_t className[96]{};

  CToolTipCtrl* toolTip = nullptr;  // serves the windows with EnableToolTips
  CWnd* tipWindow = nullptr;
  INT_PTR tipHit = -1;
  TOOLINFO tipTool{};
};

AfxThreadState& AfxGetThreadState();
// At the end of a worker thread, which must have destroyed its window objects.
void AfxFreeThreadState();

class AFX_MODULE_STATE {
 public:
  CWinApp* app = nullptr;
  HINSTANCE instance = nullptr;
  HINSTANCE resources = nullptr;
  std::vector<CDynLinkLibrary*> libraries;
};

BOOL AfxIsIdleMessage(const MSG* message, POINT* lastPoint, UINT* lastMessage);
MSG* AfxCurrentMessage();
// The entry in one table, or null.
const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* entry, UINT message, UINT code,
                                            UINT id);
void AfxReportException(const CException& e);
INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// The parent of a child, the owner of any other window.
inline HWND AfxParentOrOwner(HWND window) {
  return ::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD ? ::GetParent(window)
                                                          : ::GetWindow(window, GW_OWNER);
}

inline HWND AfxHandleOf(const CWnd* wnd) { return wnd ? wnd->m_hWnd : nullptr; }
