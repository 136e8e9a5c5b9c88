// The base of the panes that show one switch each: pressed in and with its own icon when on. A
// click flips it. Exported, so that sibling modules can derive panes of their own; it decides
// nothing about the switch, which OnToggle and IsOn belong to.
#pragma once

#include "afxwin.h"

#include "acstatusbar.h"

// What the module offers to its siblings: exported while it is built itself, imported elsewhere.
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

  // In this order behind the slots of AcPane.
  virtual void OnToggle() = 0;
  virtual bool IsOn() = 0;
  virtual void OnSetting();         // the host's options
  virtual void Check(bool update);  // the style of the state; `update` paints the bar anew
  virtual void Init(bool add);      // onto the application's bar, or off it; nothing without one

 protected:
  // Shows the menu that fits the state and does what is chosen from it.
  void ShowStateMenu(int onMenu, int offMenu, CPoint point);

  CString m_strToolTip;
  bool m_bRefreshMenu = false;  // refresh the screen menu after a click; no pane here sets it
};

// Who refreshes the screen menu for a pane that asks for it; null: nobody.
void SetPaneMenuRefresh(void (*refresh)());
