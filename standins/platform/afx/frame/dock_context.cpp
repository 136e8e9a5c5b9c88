// CDockContext: the drag of one bar and its last positions.
#include <algorithm>

#include "afxpriv.h"
#include "drag_ghost.h"
#include "portable/dock_layout.h"

namespace {

// Client size of a palette that floats for the first time.
constexpr SIZE kFirstFloat{220, 420};

CRect WindowRectOf(const CWnd* window) {
  CRect rect;
  window->GetWindowRect(rect);
  return rect;
}

}  // namespace

DWORD CDockContext::SideAt(CPoint pt) const {
  if (::GetKeyState(VK_CONTROL) < 0 || !m_pBar->m_pDockSite) return kDockNone;
  return m_pBar->m_pDockSite->CanDock(pt, m_dwDockStyle);
}

// Docked: the band that the bar would take. Floating: a frame of its size at the pointer.
CRect CDockContext::DragRectAt(CPoint pt, DWORD side) const {
  if (side != kDockNone) {
    const CRect area = m_pBar->m_pDockSite->DockArea();
    const CSize size = m_pBar->CalcDynamicLayout(
        -1, DockRunsAcrossScreen(side) ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
    return DockPreview(area, side, size);
  }
  const CSize size =
      m_pBar->IsFloating() ? WindowRectOf(m_pBar->GetDockingFrame()).Size() : FloatSize();
  return CRect(CPoint(pt.x - m_grip.x, pt.y - m_grip.y), size);
}

CSize CDockContext::FloatSize() const {
  if (!m_pBar->FillsDockRow()) return m_pBar->CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH);
  const CSize least = m_pBar->FloatingMinimum();
  const CSize size = m_sizeMRUFloat.cx > 0 ? m_sizeMRUFloat : CSize(kFirstFloat);
  return CSize(std::max(size.cx, least.cx), std::max(size.cy, least.cy));
}

void CDockContext::StartDrag(CPoint pt) {
  m_pDockSite = m_pBar->m_pDockSite;
  if (!m_pDockSite || m_bDragging) return;
  CWnd* dragged = m_pBar;
  if (m_pBar->IsFloating()) dragged = m_pBar->GetDockingFrame();
  const CRect now = WindowRectOf(dragged);
  const CSize shown = m_pBar->IsFloating() ? now.Size() : FloatSize();
  m_grip = CPoint(std::clamp<int>(pt.x - now.left, 0, shown.cx - 1),
                  std::clamp<int>(pt.y - now.top, 0, shown.cy - 1));
  CPoint last = pt;
  DWORD side = kDockNone;
  bool moved = false, dropped = false;
  m_bDragging = TRUE;
  {
    DragGhost ghost(m_pDockSite->m_hWnd);
    dropped = FollowPointer(dragged->m_hWnd, [&](CPoint pointer) {
      last = pointer;
      moved = moved || std::abs(last.x - pt.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
              std::abs(last.y - pt.y) >= ::GetSystemMetrics(SM_CYDRAG);
      if (!moved) return;
      side = SideAt(last);
      ghost.Show(DragRectAt(last, side), false);
    });
  }
  m_bDragging = FALSE;
  if (dropped && moved && ::IsWindow(m_pBar->m_hWnd)) Drop(last, side);
}

void CDockContext::Drop(CPoint pt, DWORD side) {
  CFrameWnd* site = m_pDockSite;
  if (side != kDockNone) {
    CDockBar* target = nullptr;
    site->CanDock(pt, side, &target);
    // The place in the dock bar is that of the pointer, not the middle of the dragged frame.
    const CRect spot(pt.x, pt.y, pt.x + 1, pt.y + 1);
    site->DockControlBar(m_pBar, target, &spot);
  } else if (m_pBar->IsFloating()) {
    CFrameWnd* frame = m_pBar->GetDockingFrame();
    frame->SetWindowPos(nullptr, pt.x - m_grip.x, pt.y - m_grip.y, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  } else {
    site->FloatControlBar(m_pBar, CPoint(pt.x - m_grip.x, pt.y - m_grip.y));
  }
  site->RecalcLayout();
}

void CDockContext::ToggleDocking() {
  CFrameWnd* site = m_pBar->m_pDockSite;
  if (!site) return;
  if (m_pBar->IsFloating()) {
    if (!m_dwDockStyle) return;
    CDockBar* last = m_uMRUDockID ? site->GetDockBar(m_uMRUDockID) : nullptr;
    site->DockControlBar(m_pBar, last ? last : site->FirstDockBar(m_dwDockStyle));
  } else {
    CPoint at = m_ptMRUFloatPos;
    if (at.x == CW_USEDEFAULT) {
      at = WindowRectOf(m_pBar).TopLeft();
      at.Offset(40, 40);
    }
    site->FloatControlBar(m_pBar, at);
  }
  site->RecalcLayout();
}
