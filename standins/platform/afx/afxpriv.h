// The messages, records and classes that frames, control bars and windows exchange among
// themselves. Product code needs it for the dock bar alone; the frame classes and a host's own bars
// use the rest.
#pragma once

#include <vector>

#include "afxext.h"
#include "afxwin.h"

struct DockPlan;

#define WM_QUERYAFXWNDPROC 0x0360  // answers 1 when the window's procedure is AfxWndProc
#define WM_SIZEPARENT 0x0361  // lParam: AFX_SIZEPARENTPARAMS*; a bar takes its strip of the frame
#define WM_SETMESSAGESTRING 0x0362  // wParam: string id, or lParam: text
#define WM_IDLEUPDATECMDUI 0x0363   // wParam: disable what has no handler
#define WM_INITIALUPDATE 0x0364
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369         // wParam: id of the resized window, lParam: its rectangle
#define WM_KICKIDLE 0x036A          // wParam: MSGF_ code, lParam: idle count; result: more wanted
#define WM_QUERYCENTERWND 0x036B    // answers the window over which to centre
#define WM_FLOATSTATUS 0x036D       // wParam: FS_ bits
#define WM_ACTIVATETOPLEVEL 0x036E  // wParam: WA_ code, lParam: HWND[2]
#define WM_POPMESSAGESTRING 0x0375

#define WM_REFLECT_BASE 0xBC00  // a message given back to the control that sent it

enum {
  FS_SHOW = 0x01,
  FS_HIDE = 0x02,
  FS_ACTIVATE = 0x04,
  FS_DEACTIVATE = 0x08,
  FS_ENABLE = 0x10,
  FS_DISABLE = 0x20,
  FS_SYNCACTIVE = 0x40,
};

// hDWP null means that the rectangle is only computed. Each bar that takes room cuts it from rect
// and adds to sizeTotal.
struct AFX_SIZEPARENTPARAMS {
  HDWP hDWP;
  RECT rect;
  SIZE sizeTotal;
  BOOL bStretch;
};

// Puts the window at rect (in its parent's client coordinates), at once or with the deferred batch.
void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect);

// The window along one side of a frame in which bars are docked, or the inside of a floating frame.
// m_arrBars holds the bars row by row; a null entry ends a row (the first and the last entry are
// always null), and a value up to 65535 keeps the place of an absent bar with that identifier.
class CDockBar : public CControlBar {
  DECLARE_DYNAMIC(CDockBar)
 public:
  explicit CDockBar(BOOL bFloating = FALSE);
  ~CDockBar() override;

  BOOL Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID);

  // The rectangle is in screen coordinates. A bar that is here already keeps its place in the array
  // when the rectangle would put it there again.
  void DockControlBar(CControlBar* pBar, LPCRECT lpRect = nullptr);
  // nAddPlaceHolder 1 leaves the identifier of the bar in its place.
  BOOL RemoveControlBar(CControlBar* pBar, int nPosExclude = -1, int nAddPlaceHolder = 0);
  void RemovePlaceHolder(CControlBar* pBar);
  int FindBar(CControlBar* pBar, int nPosExclude = -1);  // -1: not here
  // Index at which the bar stands after it has been put in; rect and point in client coordinates.
  int Insert(CControlBar* pBar, CRect rect, CPoint ptMid);
  int GetDockedCount() const;
  int GetDockedVisibleCount() const;
  CControlBar* GetDockedControlBar(int nPos) const;  // null: marker, place holder or out of range

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
  struct Strip {  // beside a row of bars that fill it: where the user takes hold of its edge
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

// Moving one bar with the mouse, and where it was: the bar's own, made by
// CControlBar::EnableDocking.
class CDockContext {
 public:
  explicit CDockContext(CControlBar* pBar) : m_pBar(pBar) {}
  virtual ~CDockContext() = default;

  // Follows the pointer (screen coordinates) until the button is let go, then docks or floats the
  // bar. Ctrl keeps it floating, Escape leaves everything as it was.
  virtual void StartDrag(CPoint pt);
  // A floating bar goes back to where it was docked last, a docked one to where it floated last.
  virtual void ToggleDocking();
  CSize FloatSize() const;  // client size of the frame in which the bar would float

  CControlBar* m_pBar;
  CFrameWnd* m_pDockSite = nullptr;
  DWORD m_dwDockStyle = 0;  // sides that the bar may take
  DWORD m_dwStyle = 0;
  BOOL m_bDragging = FALSE;
  UINT m_uMRUDockID = 0;   // dock bar it was in last; 0: never docked
  CRect m_rectMRUDockPos;  // there, in the dock bar's client coordinates
  DWORD m_dwMRUFloatStyle = 0;
  CPoint m_ptMRUFloatPos{CW_USEDEFAULT, CW_USEDEFAULT};
  CSize m_sizeMRUFloat;  // client size of the floating frame; 0: as the bar measures

 private:
  CRect DragRectAt(CPoint pt, DWORD side) const;
  DWORD SideAt(CPoint pt) const;
  void Drop(CPoint pt, DWORD side);
  CPoint m_grip;  // pointer within the floating frame that the drag shows
};

// The frame of a floating bar: small caption, close box, a thick border if the bar can be sized.
class CMiniDockFrameWnd : public CMiniFrameWnd {
  DECLARE_DYNCREATE(CMiniDockFrameWnd)
 public:
  CMiniDockFrameWnd() : m_wndDockBar(TRUE) { m_wndDockBar.m_bAutoDelete = FALSE; }

  virtual BOOL Create(CWnd* pParent, DWORD dwBarStyle);
  void RecalcLayout(BOOL bNotify = TRUE) override;
  CControlBar* FloatedBar() const;  // null while it is being taken out

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
