// Base of the panes that show one switch each: pressed in and with its own icon when on; a click
// toggles it. Exported, so that sibling modules can derive panes; the derived class implements the
// switch by OnToggle and IsOn.
#pragma once

#include "afxwin.h"

#include "acstatusbar.h"

// Exported by the module, imported by its siblings.
#if defined(QVX_SHELL_BUILD)
#define QVX_SHELL __declspec(dllexport)
#else
#define QVX_SHELL __declspec(dllimport)
#endif

class QVX_SHELL CADStatusPane : public AcPane {
 public:
  CADStatusPane();
  CADStatusPane(const CADStatusPane& other);
  CADStatusPane& operator=(const CADStatusPane& other);
  ~CADStatusPane() override;

  BOOL GetToolTipText(CString& text) const override;
  void OnLButtonDown(UINT flags, CPoint point) override;
  void OnLButtonDblClk(UINT flags, CPoint point) override;
  void OnRButtonDown(UINT flags, CPoint point) override;

  // The vtable order, after AcPane's virtual functions; siblings depend on it.
  virtual void OnToggle() = 0;
  virtual bool IsOn() = 0;
  virtual void OnSetting();         // opens the host's options
  virtual void Check(bool update);  // sets the style of the state; `update` repaints the bar
  // Adds the pane to the application's bar, or removes it; no effect without one.
  virtual void Init(bool add);

 protected:
  // Shows the menu for the current state and runs the chosen line.
  void ShowStateMenu(int onMenu, int offMenu, CPoint point);

  CString m_strToolTip;
  // Refresh the screen menu after a click; no pane of this module sets it.
  bool m_bRefreshMenu = false;
};

// The function that refreshes the screen menu after a click on a pane with
// m_bRefreshMenu; null: none.
void SetPaneMenuRefresh(void (*refresh)());
