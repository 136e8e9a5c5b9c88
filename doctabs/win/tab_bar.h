// CTabBar: the window of a strip of tabs. It translates messages and carries out what TabStrip
// decides. The window class is the status bar's, for its look and borders; the strip paints the
// inside itself.
#pragma once

#include "afxext.h"

#include "afxcmn.h"
#include "doctabs/tab_picture.h"
#include "doctabs/win/strip_accessible.h"
#include "ground/win/guarded_window.h"

class CTabBar;

// The strip's window as TabStrip uses it.
class TabBarWindow final : public TabStripWindow {
 public:
  explicit TabBarWindow(CTabBar& bar) : m_bar(bar) {}

  bool Exists() override;
  bool IsVisible() override;
  void Show(bool show) override;
  bool HasSiblingBelow() override;
  void MoveToBottom() override;
  void RecalcFrame() override;
  SIZE ClientSize() override;
  void HideArrows() override;
  void ShowArrows(const RECT& box, int top, int position) override;
  int ArrowsTop() override;
  void SetArrows(int position) override;
  void Invalidate() override;
  void Scroll(const RECT& part, int dx) override;
  void StartTimer(int id, int milliseconds) override;
  void StopTimer(int id) override;
  int TextWidth(const CString& text) override;
  bool MayActivate() override;
  void OnTabActivated() override;

 private:
  CTabBar& m_bar;
};

class CTabBar : public qvx::GuardedWindow<CControlBar> {
  DECLARE_DYNAMIC(CTabBar)
 public:
  CTabBar();
  ~CTabBar() override;
  CTabBar(const CTabBar&) = delete;
  CTabBar& operator=(const CTabBar&) = delete;

  CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
  // The user has made another tab active; the strip is not repainted yet.
  virtual void OnTabActivated() {}

  void AddTab(const CString& name) { m_strip.AddTab(name); }
  void RemoveTab(int index) { m_strip.RemoveTab(index); }
  void RenameTab(int index, const CString& name) { m_strip.RenameTab(index, name); }
  void ClearTabs() { m_strip.ClearTabs(); }
  int HitTestTab(CPoint point) const { return m_strip.HitTest(point.x); }
  void SetActiveTab(int index) { m_strip.SetActiveTab(index); }
  void ActivateTab(int index) { m_strip.ActivateTab(index); }
  void RecalcTabs(int cx, int cy) { m_strip.RecalcTabs(cx, cy); }

 private:
  friend class TabBarWindow;
  TabBarWindow m_window{*this};

 public:
  TabStrip m_strip{m_window};  // mode, texts, offsets, order, first tab, arrows
  CSpinButtonCtrl m_spin;      // the arrows
  CFont m_font;
  COLORREF m_colorText = kTabColours.text;
  COLORREF m_colorActiveText = kTabColours.activeText;
  COLORREF m_colorActiveBack = kTabColours.activeBack;

 protected:
  afx_msg int OnCreate(LPCREATESTRUCT lpcs);
  afx_msg void OnNcCalcSize(BOOL calcValid, NCCALCSIZE_PARAMS* params);
  afx_msg void OnNcPaint();
  afx_msg void OnPaint();
  afx_msg void OnSize(UINT type, int cx, int cy);
  afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
  afx_msg void OnLButtonDown(UINT flags, CPoint point);
  afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
  afx_msg void OnTimer(UINT_PTR timer);
  afx_msg void OnDestroy();
  afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnActivateTab(WPARAM tab, LPARAM);
  DECLARE_MESSAGE_MAP()

 private:
  CRect EmptyInside() const;
  TabColours Colours() const;

  StripAccess m_access;
};
