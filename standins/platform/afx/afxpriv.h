// Messages, records and classes that frames, control bars and windows use among themselves. Product
// code needs it for the dock bar only; a host's own bars use the rest.
#pragma once

#include <vector>

#include "afxext.h"
#include "afxwin.h"

struct DockPlan;

#define WM_QUERYAFXWNDPROC 0x0360   // returns 1 if the window's procedure is AfxWndProc
#define WM_SIZEPARENT 0x0361        // lParam: AFX_SIZEPARENTPARAMS*; a bar takes its strip
#define WM_SETMESSAGESTRING 0x0362  // wParam: string id, or lParam: text
#define WM_IDLEUPDATECMDUI 0x0363   // wParam: disable commands without a handler
#define WM_INITIALUPDATE 0x0364
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369         // wParam: id of the resized window, lParam: its rectangle
#define WM_KICKIDLE 0x036A          // wParam: MSGF_ code, lParam: idle count; returns TRUE for more
#define WM_QUERYCENTERWND 0x036B    // returns the window over which to centre
#define WM_FLOATSTATUS 0x036D       // wParam: FS_ bits
#define WM_ACTIVATETOPLEVEL 0x036E  // wParam: WA_ code, lParam: HWND[2]
#define WM_POPMESSAGESTRING 0x0375

#define WM_REFLECT_BASE 0xBC00  // added to a message reflected to its control

enum {
  FS_SHOW = 0x01,
  FS_HIDE = 0x02,
  FS_ACTIVATE = 0x04,
  FS_DEACTIVATE = 0x08,
  FS_ENABLE = 0x10,
  FS_DISABLE = 0x20,
  FS_SYNCACTIVE = 0x40,
};

// hDWP null: the rectangle is only computed. Each bar removes its strip from rect
// and adds it to sizeTotal.
struct AFX_SIZEPARENTPARAMS {
  HDWP hDWP;
  RECT rect;
  SIZE sizeTotal;
  BOOL bStretch;
};

// Moves the window to rect (in its parent's client coordinates), at once or
// with the deferred batch.
void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect);

// The window along one side of a frame in which bars are docked, or the inside of a floating frame.
// m_arrBars contains the bars row by row; a null entry ends a row (the first and the last entry are
// always null), and a value up to 65535 is the place holder of an absent bar with that identifier.
class CDockBar : public CControlBar {
  DECLARE_DYNAMIC(CDockBar)
 public:
  explicit CDockBar(BOOL bFloating = FALSE);
  ~CDockBar() override;

  BOOL Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID);

  // The rectangle is in screen coordinates. A bar that is docked here already keeps its index if
  // the rectangle leads to the same place.
  void DockControlBar(CControlBar* pBar, LPCRECT lpRect = nullptr);
  // nAddPlaceHolder 1 leaves a place holder with the bar's identifier.
  BOOL RemoveControlBar(CControlBar* pBar, int nPosExclude = -1, int nAddPlaceHolder = 0);
  void RemovePlaceHolder(CControlBar* pBar);
  int FindBar(CControlBar* pBar, int nPosExclude = -1);  // -1: not found
  // Inserts the bar and returns its index; rect and point in client coordinates.
  int Insert(CControlBar* pBar, CRect rect, CPoint ptMid);
  int GetDockedCount() const;
  int GetDockedVisibleCount() const;
  CControlBar* GetDockedControlBar(int nPos) const;  // null: row end, place holder or out of range

  BOOL IsDockBar() const override { return TRUE; }
  CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
  void DoPaint(CDC* pDC) override;

  CPtrArray m_arrBars;
  BOOL m_bFloating;
  CRect m_rectLayout;

 protected:
  afx_msg void OnDestroy();
  afx_msg BOOL OnEraseBkgnd(CDC* pDC);
  afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
  afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
  afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  struct Strip {  // beside a row of filling bars: dragged to resize them
    CRect rect;
    CControlBar* bar;
  };
  struct Batch;
  DWORD Side() const { return m_dwStyle & CBRS_ALIGN_ANY; }
  DockPlan Plan() const;
  void PlaceBars(const DockPlan& plan);
  void PlaceFloating();
  int PutIn(CControlBar* pBar, LPCRECT lpRectClient);
  void TakeOver(CControlBar* pBar, CDockBar* from);
  const Strip* StripAt(CPoint point) const;
  void DragStrip(Strip strip, CPoint from);

  std::vector<Strip> m_strips;
  BOOL m_bLayoutQuery = FALSE;
};

// Drags one bar with the mouse and keeps its last positions. Owned by the bar, created by
// CControlBar::EnableDocking.
class CDockContext {
 public:
  explicit CDockContext(CControlBar* pBar) : m_pBar(pBar) {}
  virtual ~CDockContext() = default;

  // Tracks the pointer (screen coordinates) until the button is released, then docks or floats the
  // bar. Ctrl keeps it floating, Escape cancels.
  virtual void StartDrag(CPoint pt);
  // Moves a floating bar to where it was docked last, a docked one to where it floated last.
  virtual void ToggleDocking();
  CSize FloatSize() const;  // client size of the floating frame

  CControlBar* m_pBar;
  CFrameWnd* m_pDockSite = nullptr;
  DWORD m_dwDockStyle = 0;  // sides on which the bar may dock
  DWORD m_dwStyle = 0;
  BOOL m_bDragging = FALSE;
  UINT m_uMRUDockID = 0;   // last dock bar; 0: never docked
  CRect m_rectMRUDockPos;  // position in it, in its client coordinates
  DWORD m_dwMRUFloatStyle = 0;
  CPoint m_ptMRUFloatPos{CW_USEDEFAULT, CW_USEDEFAULT};
  CSize m_sizeMRUFloat;  // client size of the floating frame; 0: as measured

 private:
  CRect DragRectAt(CPoint pt, DWORD side) const;
  DWORD SideAt(CPoint pt) const;
  void Drop(CPoint pt, DWORD side);
  CPoint m_grip;  // pointer within the dragged floating frame
};

// The frame of a floating bar: small caption, close box, a sizing border if the bar can be resized.
class CMiniDockFrameWnd : public CMiniFrameWnd {
  DECLARE_DYNCREATE(CMiniDockFrameWnd)
 public:
  CMiniDockFrameWnd() : m_wndDockBar(TRUE) { m_wndDockBar.m_bAutoDelete = FALSE; }

  virtual BOOL Create(CWnd* pParent, DWORD dwBarStyle);
  void RecalcLayout(BOOL bNotify = TRUE) override;
  CControlBar* FloatedBar() const;  // null while the bar is being removed

  CDockBar m_wndDockBar;

 protected:
  afx_msg void OnClose();
  afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
  afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
  afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
  afx_msg void OnSize(UINT nType, int cx, int cy);
  afx_msg void OnDestroy();
  DECLARE_MESSAGE_MAP()
};
