// CControlBar: a strip along an edge of a frame, or a bar that docks and floats. Bars take their
// strip in the frame's layout pass (WM_SIZEPARENT); CalcFixedLayout alone measures a bar. Included
// by afxwin.h through afxframe.h; can be included on its own.
//
// Not offered: tool bars, dialog bars, splitters, in-place editing, printing of bars.
#pragma once

#define __AFXEXT_H__

#include "afxwin.h"

// Side, border lines and behaviour of a bar: the low word of m_dwStyle.
#define CBRS_FLOATING 0x0001L
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_SIZE_DYNAMIC 0x0004L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_GRIPPER 0x00400000L
#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL
// A side with the line towards the middle of the frame.
#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// Modes of CalcDynamicLayout.
#define LM_STRETCH 0x01
#define LM_HORZ 0x02
#define LM_MRUWIDTH 0x04
#define LM_HORZDOCK 0x08
#define LM_VERTDOCK 0x10
#define LM_LENGTHY 0x20
#define LM_COMMIT 0x40

class CDockBar;
class CDockContext;
struct AFX_SIZEPARENTPARAMS;

class CControlBar : public CWnd {
  DECLARE_DYNAMIC(CControlBar)
 protected:
  CControlBar() = default;

 public:
  ~CControlBar() override;

  // A length of 32767 along the bar means "all available room".
  virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
  virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
  virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

  int GetCount() const { return m_nCount; }
  DWORD GetBarStyle() const { return m_dwStyle; }
  void SetBarStyle(DWORD dwStyle);
  // Margins inside the border lines; by default 6 left and right, 1 top and bottom.
  CRect GetBorders() const {
    return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
  }
  void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
  void SetBorders(LPCRECT lpRect) {
    SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
  }

  // Allows docking on the given sides (CBRS_ALIGN_...). From then on the bar's notifications go to
  // its parent at this call, whatever its later parent.
  void EnableDocking(DWORD dwDockStyle);
  BOOL IsFloating() const;
  BOOL IsDocked() const { return m_pDockBar && !IsFloating(); }
  CFrameWnd* GetDockingFrame() const;

  // Shows or hides at the next idle time or layout pass, whichever is first. IsVisible returns the
  // pending state, the WS_VISIBLE bit of the window the current one.
  virtual void DelayShow(BOOL bShow);
  virtual BOOL IsVisible() const;
  virtual BOOL IsDockBar() const { return FALSE; }
  DWORD RecalcDelayShow(AFX_SIZEPARENTPARAMS* lpLayout);

  BOOL PreCreateWindow(CREATESTRUCT& cs) override;
  BOOL PreTranslateMessage(MSG* pMsg) override;
  BOOL DestroyWindow() override;
  void PostNcDestroy() override;

  // Removes border lines and margins from rect; bHorz FALSE turns the margins with the bar.
  virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;
  virtual void DoPaint(CDC* pDC);
  void DrawBorders(CDC* pDC, CRect& rect);
  void EraseNonClient();  // fills the border area outside the client area
  virtual void OnBarStyleChange(DWORD, DWORD) {}
  // TRUE for a bar that fills its row in a dock bar and can be resized at its inner edge, as
  // palettes do. The dock bar reserves a strip beside such a row for dragging the edge.
  virtual BOOL FillsDockRow() const { return FALSE; }
  // Called after the user has dragged the inner edge of a docked bar that fills
  // its row; cx or cy is used.
  virtual void SetDockedSize(CSize) {}
  // Minimum client size while the bar floats.
  virtual CSize FloatingMinimum() { return CSize(0, 0); }
  // Called for the close box of the floating frame; FALSE keeps the bar open.
  virtual BOOL OnCloseFloating() { return TRUE; }

  BOOL m_bAutoDelete = FALSE;  // delete the object with its window
  DWORD m_dwStyle = 0;
  DWORD m_dwDockStyle = 0;           // sides that EnableDocking allows
  CFrameWnd* m_pDockSite = nullptr;  // the frame it belongs to, docked or floating
  CDockBar* m_pDockBar = nullptr;  // the dock bar that contains it; one of its own while it floats
  CDockContext* m_pDockContext = nullptr;  // owned; exists after EnableDocking
  int m_nCount = 0;
  void* m_pData = nullptr;

  enum StateFlags { delayHide = 0x01, delayShow = 0x02, tempHide = 0x04, statusSet = 0x08 };
  UINT m_nStateFlags = 0;

 protected:
  int m_cxLeftBorder = 6, m_cxRightBorder = 6, m_cyTopBorder = 1, m_cyBottomBorder = 1;
  int m_cxDefaultGap = 2;

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  afx_msg int OnCreate(LPCREATESTRUCT lpcs);
  afx_msg void OnDestroy();
  afx_msg void OnPaint();
  afx_msg void OnTimer(UINT_PTR nIDEvent);
  afx_msg void OnWindowPosChanging(WINDOWPOS* lpWndPos);
  afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
  afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

  friend class CFrameWnd;
  friend class CDockBar;
  friend class CMiniDockFrameWnd;
};
