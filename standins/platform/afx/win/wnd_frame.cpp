// From a window to its frames. Separate from the rest of CWnd because only this
// needs the frame classes.
#include "afximpl.h"

CFrameWnd* CWnd::GetParentFrame() const {
  if (!m_hWnd) return nullptr;
  for (HWND window = AfxParentOrOwner(m_hWnd); window; window = AfxParentOrOwner(window)) {
    CWnd* wnd = FromHandlePermanent(window);
    if (wnd && wnd->IsFrameWnd()) return static_cast<CFrameWnd*>(wnd);
  }
  return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
  if (!m_hWnd) return nullptr;
  CFrameWnd* frame =
      IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
  while (frame) {
    CFrameWnd* outer = frame->GetParentFrame();
    if (!outer) break;
    frame = outer;
  }
  return frame;
}

CFrameWnd* CWnd::EnsureParentFrame() {
  CFrameWnd* frame = GetParentFrame();
  if (!frame) AfxThrowNotSupportedException();
  return frame;
}
