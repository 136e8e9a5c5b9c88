// CDockBar: applies the layout of dock_layout to the bars of one side, adds and removes bars, and
// lets the user drag the edge of a row with a filling bar.
#include <algorithm>

#include "afxpriv.h"
#include "drag_ghost.h"
#include "portable/dock_array.h"

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_SETCURSOR()
ON_WM_LBUTTONDOWN()
ON_MESSAGE(WM_SIZEPARENT, OnSizeParent)
END_MESSAGE_MAP()

namespace {

CControlBar* BarOf(void* entry) {
  return IsDockedBar(entry) ? static_cast<CControlBar*>(entry) : nullptr;
}

CRect RectIn(const CWnd* bar, const CWnd* dockBar) {
  CRect rect;
  bar->GetWindowRect(rect);
  dockBar->ScreenToClient(rect);
  return rect;
}

// A docked bar has its line at the inner edge.
DWORD DockedStyle(DWORD style, DWORD side) {
  DWORD inner = 0;
  if (style & CBRS_BORDER_ANY) {
    if (side == CBRS_ALIGN_LEFT) inner = CBRS_BORDER_RIGHT;
    if (side == CBRS_ALIGN_TOP) inner = CBRS_BORDER_BOTTOM;
    if (side == CBRS_ALIGN_RIGHT) inner = CBRS_BORDER_LEFT;
    if (side == CBRS_ALIGN_BOTTOM) inner = CBRS_BORDER_TOP;
  }
  return (style & ~DWORD(CBRS_ALIGN_ANY | CBRS_BORDER_ANY | CBRS_FLOATING)) | side | inner;
}

int StripWidth(DWORD side) {
  return ::GetSystemMetrics(DockRunsAcrossScreen(side) ? SM_CYFRAME : SM_CXFRAME);
}

}  // namespace

// Moves the bars of one layout pass together.
struct CDockBar::Batch : AFX_SIZEPARENTPARAMS {
  explicit Batch(int count) : AFX_SIZEPARENTPARAMS{::BeginDeferWindowPos(count), {}, {}, FALSE} {}
  ~Batch() {
    if (hDWP) ::EndDeferWindowPos(hDWP);
  }
};

CDockBar::CDockBar(BOOL bFloating) : m_bFloating(bFloating) {
  m_arrBars.Add(nullptr);
  m_bAutoDelete = TRUE;
}

CDockBar::~CDockBar() {
  for (int i = 0; i < m_arrBars.GetSize(); ++i)
    if (CControlBar* bar = GetDockedControlBar(i); bar && bar->m_pDockBar == this)
      bar->m_pDockBar = nullptr;
}

BOOL CDockBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
  m_dwStyle = dwStyle & CBRS_ALL & 0xFFFF;
  SetBorders(0, 0, 0, 0);
  LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
  return CWnd::Create(windowClass, nullptr,
                      (dwStyle & 0xFFFF0000) | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                      CRect(0, 0, 0, 0), pParentWnd, nID);
}

void CDockBar::OnDestroy() {
  m_strips.clear();
  CControlBar::OnDestroy();
}

// --- search

int CDockBar::FindBar(CControlBar* pBar, int nPosExclude) {
  return FindDockEntry(m_arrBars, pBar, nPosExclude);
}

CControlBar* CDockBar::GetDockedControlBar(int nPos) const {
  return nPos >= 0 && nPos < m_arrBars.GetSize() ? BarOf(m_arrBars[nPos]) : nullptr;
}

int CDockBar::GetDockedCount() const {
  int count = 0;
  for (int i = 0; i < m_arrBars.GetSize(); ++i) count += GetDockedControlBar(i) != nullptr;
  return count;
}

int CDockBar::GetDockedVisibleCount() const {
  int count = 0;
  for (int i = 0; i < m_arrBars.GetSize(); ++i) {
    CControlBar* bar = GetDockedControlBar(i);
    count += bar && bar->IsVisible();
  }
  return count;
}

void CDockBar::RemovePlaceHolder(CControlBar* pBar) {
  const int at = FindDockEntry(m_arrBars, DockPlaceHolder(UINT(pBar->GetDlgCtrlID())));
  if (at > 0) RemoveDockEntry(m_arrBars, at);
}

// --- adding and removing

int CDockBar::Insert(CControlBar* pBar, CRect rect, CPoint ptMid) {
  (void)rect;  // only its middle is used
  const DockPlace place = FindDockPlace(Plan(), Side(), ptMid, int(m_arrBars.GetSize()));
  return InsertDockEntry(m_arrBars, pBar, place);
}

// Without a rectangle: at its place holder, else in a row of its own at the inner end.
int CDockBar::PutIn(CControlBar* pBar, LPCRECT lpRectClient) {
  if (lpRectClient) return Insert(pBar, CRect(lpRectClient), CRect(lpRectClient).CenterPoint());
  const int held = FindDockEntry(m_arrBars, DockPlaceHolder(UINT(pBar->GetDlgCtrlID())));
  if (held > 0) {
    m_arrBars[held] = pBar;
    return held;
  }
  const bool innerIsFirst = (Side() & (CBRS_ALIGN_RIGHT | CBRS_ALIGN_BOTTOM)) != 0;
  return InsertDockEntry(m_arrBars, pBar, {innerIsFirst ? 1 : int(m_arrBars.GetSize()), true});
}

void CDockBar::TakeOver(CControlBar* pBar, CDockBar* from) {
  pBar->SetParent(this);
  pBar->m_pDockBar = this;
  if (m_bFloating) {
    pBar->SetBarStyle(pBar->m_dwStyle | CBRS_FLOATING);
  } else {
    pBar->SetBarStyle(DockedStyle(pBar->m_dwStyle, Side()));
    if (pBar->m_pDockContext) pBar->m_pDockContext->m_uMRUDockID = UINT(GetDlgCtrlID());
  }
  // A bar that moves to a floating frame leaves a place holder.
  if (from && from != this) from->RemoveControlBar(pBar, -1, m_bFloating && !from->m_bFloating);
}

void CDockBar::DockControlBar(CControlBar* pBar, LPCRECT lpRect) {
  CRect rect;
  if (lpRect) {
    rect = *lpRect;
    ScreenToClient(rect);
  }
  CDockBar* from = pBar->m_pDockBar;
  if (from == this) {
    CRect both;
    if (!lpRect || both.IntersectRect(rect, RectIn(pBar, this))) return;
    // Computed before the bar leaves its old place, because the rectangle relates to that layout.
    const DockPlace place =
        FindDockPlace(Plan(), Side(), rect.CenterPoint(), int(m_arrBars.GetSize()));
    void* const left = DockPlaceHolder(0xFFFF);
    m_arrBars[FindBar(pBar)] = left;
    InsertDockEntry(m_arrBars, pBar, place);
    RemoveDockEntry(m_arrBars, FindDockEntry(m_arrBars, left));
    return;
  }
  PutIn(pBar, lpRect ? &rect : nullptr);
  TakeOver(pBar, from);
  if (lpRect)
    pBar->SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CDockBar::RemoveControlBar(CControlBar* pBar, int nPosExclude, int nAddPlaceHolder) {
  const int at = FindBar(pBar, nPosExclude);
  if (at < 0) return FALSE;
  RemoveDockEntry(m_arrBars, at, nAddPlaceHolder ? UINT(pBar->GetDlgCtrlID()) : 0);
  std::erase_if(m_strips, [pBar](const Strip& strip) { return strip.bar == pBar; });
  if (pBar->m_pDockBar == this) pBar->m_pDockBar = nullptr;
  CFrameWnd* frame = m_hWnd ? GetParentFrame() : nullptr;
  if (!frame) return TRUE;
  if (!m_bFloating) {
    frame->DelayRecalcLayout();
  } else if (GetDockedCount() == 0) {
    // Destroyed later: this may run inside a message of the empty frame.
    frame->ShowWindow(SW_HIDE);
    frame->PostMessage(WM_CLOSE);
  }
  return TRUE;
}

// --- layout

DockPlan CDockBar::Plan() const {
  const bool horizontal = DockRunsAcrossScreen(Side());
  std::vector<DockRow> rows;
  DockRow row;
  for (int i = 0; i < m_arrBars.GetSize(); ++i) {
    CControlBar* bar = GetDockedControlBar(i);
    if (!m_arrBars[i] && !row.empty()) {
      rows.push_back(row);
      row.clear();
    }
    if (!bar || !bar->m_hWnd || !bar->IsVisible()) continue;
    const CSize wanted =
        bar->CalcDynamicLayout(-1, horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
    const CRect now = RectIn(bar, this);
    row.push_back(
        {wanted, horizontal ? int(now.left) : int(now.top), bar->FillsDockRow() != FALSE, i});
  }
  if (!row.empty()) rows.push_back(row);
  const int length = horizontal ? m_rectLayout.Width() : m_rectLayout.Height();
  return PlanDockRows(rows, Side(), length, StripWidth(Side()));
}

void CDockBar::PlaceBars(const DockPlan& plan) {
  Batch batch(int(m_arrBars.GetSize()) * 2);
  for (int i = 0; i < m_arrBars.GetSize(); ++i)
    if (CControlBar* bar = GetDockedControlBar(i)) bar->RecalcDelayShow(&batch);
  std::vector<Strip> strips;
  for (const DockPlan::Row& row : plan.rows) {
    CControlBar* filler = nullptr;
    for (const DockPlan::Bar& planned : row.bars) {
      CControlBar* bar = GetDockedControlBar(planned.entry);
      if (bar->FillsDockRow()) filler = bar;
      AfxRepositionWindow(&batch, bar->m_hWnd, &planned.rect);
    }
    if (filler) strips.push_back({CRect(row.strip), filler});
  }
  for (const Strip& strip : m_strips) InvalidateRect(strip.rect);
  m_strips = std::move(strips);
  for (const Strip& strip : m_strips) InvalidateRect(strip.rect);
}

// A floating frame has one bar; a filling bar gets the whole client area.
void CDockBar::PlaceFloating() {
  Batch batch(2);
  for (int i = 0; i < m_arrBars.GetSize(); ++i) {
    CControlBar* bar = GetDockedControlBar(i);
    if (!bar) continue;
    bar->RecalcDelayShow(&batch);
    CRect rect(m_rectLayout);
    if (!bar->FillsDockRow())
      rect = CRect(rect.TopLeft(), bar->CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH));
    else
      bar->CalcDynamicLayout(-1, LM_VERTDOCK);
    AfxRepositionWindow(&batch, bar->m_hWnd, rect);
  }
}

CSize CDockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
  if (m_bFloating) {
    if (!m_bLayoutQuery) PlaceFloating();
    return m_rectLayout.Size();
  }
  const DockPlan plan = Plan();
  if (!m_bLayoutQuery) PlaceBars(plan);
  const int length = bStretch ? 32767 : bHorz ? m_rectLayout.Width() : m_rectLayout.Height();
  return bHorz ? CSize(length, plan.thickness) : CSize(plan.thickness, length);
}

LRESULT CDockBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
  auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
  m_bLayoutQuery = layout->hDWP == nullptr;
  m_rectLayout = layout->rect;
  const LRESULT result = CControlBar::OnSizeParent(wParam, lParam);
  m_bLayoutQuery = FALSE;
  return result;
}

// --- strips for dragging

void CDockBar::DoPaint(CDC*) {}

// One dark line at the outer edge on the face colour; the default edge with two light lines would
// look like a raised bead.
BOOL CDockBar::OnEraseBkgnd(CDC* pDC) {
  CRect client;
  GetClientRect(client);
  pDC->FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
  const bool horizontal = DockRunsAcrossScreen(Side());
  for (const Strip& strip : m_strips) {
    const CRect& r = strip.rect;
    const COLORREF line = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    if (horizontal)
      pDC->FillSolidRect(r.left, r.top + r.Height() / 2, r.Width(), 1, line);
    else
      pDC->FillSolidRect(r.left + r.Width() / 2, r.top, 1, r.Height(), line);
  }
  return TRUE;
}

const CDockBar::Strip* CDockBar::StripAt(CPoint point) const {
  for (const Strip& strip : m_strips)
    if (strip.rect.PtInRect(point)) return &strip;
  return nullptr;
}

BOOL CDockBar::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
  CPoint point;
  ::GetCursorPos(&point);
  ScreenToClient(&point);
  if (pWnd && pWnd->m_hWnd == m_hWnd && StripAt(point)) {
    ::SetCursor(::LoadCursor(nullptr, DockRunsAcrossScreen(Side()) ? IDC_SIZENS : IDC_SIZEWE));
    return TRUE;
  }
  return CControlBar::OnSetCursor(pWnd, nHitTest, message);
}

void CDockBar::OnLButtonDown(UINT nFlags, CPoint point) {
  if (const Strip* strip = StripAt(point)) {
    DragStrip(*strip, point);
    return;
  }
  CControlBar::OnLButtonDown(nFlags, point);
}

void CDockBar::DragStrip(Strip strip, CPoint from) {
  const CSize least = strip.bar->FloatingMinimum();
  const bool horizontal = DockRunsAcrossScreen(Side());
  const CRect bar = RectIn(strip.bar, this);
  CFrameWnd* frame = GetParentFrame();
  CRect area, moved(strip.rect);
  frame->GetClientRect(area);
  frame->ClientToScreen(area);
  ScreenToClient(area);
  bool dropped = false;
  {
    DragGhost ghost(frame->m_hWnd);
    dropped = FollowPointer(m_hWnd, [&](CPoint pointer) {
      ScreenToClient(&pointer);
      moved = DragDockStrip(strip.rect, bar, Side(), from, pointer,
                            horizontal ? least.cy : least.cx, area);
      CRect shown(moved);
      ClientToScreen(shown);
      ghost.Show(shown, true);
    });
  }
  if (!dropped || moved == strip.rect || FindBar(strip.bar) < 0) return;
  const int size = ThicknessAfterDrag(strip.rect, moved, bar, Side());
  strip.bar->SetDockedSize(horizontal ? CSize(bar.Width(), size) : CSize(size, bar.Height()));
  frame->RecalcLayout();
}
