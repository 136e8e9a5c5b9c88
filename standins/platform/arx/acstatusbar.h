// The host's application status bar as modules see it: items (AcStatusBarItem), text or icon panes
// (AcPane) and the bar (AcApStatusBar). Modules derive their panes from AcPane, add them and answer
// mouse messages; the bar draws them. Trays and per-document bars are not offered.
#pragma once

#ifndef __AFXWIN_H__
#error "include afxwin.h first"
#endif

// Values of AcPane::SetStyle. A raised pane is "off", a pressed one "on".
enum : int {
  ACSBPS_POPOUT = 2,  // raised
  ACSBPS_NORMAL = 8,  // pressed in
  ACSBPS_POPUP = 32,  // has a menu: drawn with a small arrow after its text
};

class AcStatusBarItem : public CObject {
 public:
  AcStatusBarItem() = default;
  AcStatusBarItem(const AcStatusBarItem& other);
  AcStatusBarItem& operator=(const AcStatusBarItem& other);
  ~AcStatusBarItem() override;

  virtual BOOL Enable(BOOL enable);
  virtual BOOL IsEnabled() const;
  virtual BOOL SetIcon(HICON icon);  // not owned; the module keeps it while it is shown
  virtual HICON GetIcon() const;
  virtual BOOL SetToolTipText(LPCTSTR text);
  virtual BOOL GetToolTipText(CString& text) const;
  virtual BOOL SetVisible(BOOL visible);
  virtual BOOL IsVisible() const;

  // Tracks the menu at a point of the bar's client area; returns the chosen command, 0 for none.
  virtual UINT DisplayContextMenu(CMenu& menu, CPoint point);

  // Points are in the bar's client coordinates.
  virtual void OnLButtonDown(UINT flags, CPoint point);
  virtual void OnLButtonDblClk(UINT flags, CPoint point);
  virtual void OnRButtonDown(UINT flags, CPoint point);
  virtual void OnDelete();

 protected:
  HICON m_icon = nullptr;
  CString m_toolTip;
  BOOL m_enabled = TRUE;
  BOOL m_visible = TRUE;
};

class AcPane : public AcStatusBarItem {
 public:
  AcPane() = default;
  AcPane(const AcPane& other) = default;
  AcPane& operator=(const AcPane& other) = default;
  ~AcPane() override;

  virtual int GetMinWidth() const;
  virtual int SetMinWidth(int width);  // returns the previous width; 0: as wide as the contents
  virtual int GetMaxWidth() const;
  virtual int SetMaxWidth(int width);  // 0 no limit
  virtual BOOL GetText(CString& text) const;
  virtual BOOL SetText(LPCTSTR text);
  virtual int GetStyle() const;
  virtual BOOL SetStyle(int style);

  // Tracks the menu above the pane itself; returns the chosen command, 0 for none.
  virtual UINT DisplayPopupPaneMenu(CMenu& menu);

 private:
  CString m_text;
  int m_style = ACSBPS_NORMAL;
  int m_minWidth = 0;
  int m_maxWidth = 0;
};

// The bar does not own its panes: remove a pane before it is destroyed.
class AcApStatusBar {
 public:
  virtual ~AcApStatusBar() = default;

  virtual BOOL Insert(int index, AcPane* pane,
                      BOOL update = TRUE) = 0;  // FALSE: bad index, or added twice
  virtual BOOL Add(AcPane* pane, BOOL update = TRUE) = 0;
  virtual BOOL Remove(AcPane* pane, BOOL update = TRUE) = 0;
  virtual BOOL Remove(int index, BOOL update = TRUE) = 0;
  virtual BOOL RemoveAllPanes(BOOL update = TRUE) = 0;
  virtual int GetPaneCount() const = 0;
  virtual AcPane* GetPane(int index) const = 0;              // null out of range
  virtual int GetIndex(AcPane* pane) const = 0;              // -1 when it is not on the bar
  virtual BOOL GetRect(AcPane* pane, RECT& rect) const = 0;  // client coordinates of the bar
  virtual HWND GetWindow() const = 0;
  virtual void Update() = 0;  // measures all panes and repaints
};

AcApStatusBar* acedGetApplicationStatusBar();  // null without a frame
