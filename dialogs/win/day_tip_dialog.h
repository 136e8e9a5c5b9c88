// The dialog "日积月累" with the tip of the day: the controls only, the rest is TipOfTheDay. The
// tip file is open as long as the object exists: create it on the stack of the command that shows
// it, while the module's resources are current.
#pragma once

#include "afxwin.h"
#include "ground/win/owned_handle.h"
#include "dialogs/tip_of_the_day.h"
#include "ground/win/guarded_window.h"
#include "kernel/win/glw_ac_ui_dialog.h"

class CDayTipDlg : public qvx::GuardedWindow<GlwCAcUiDialog>, public qvx::TipOfTheDay {
 public:
  explicit CDayTipDlg(CWnd* parent);

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  BOOL OnInitDialog() override;
  void OnOK() override;
  afx_msg void OnNext();
  afx_msg void OnPrevious();
  afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
  DECLARE_MESSAGE_MAP()

 private:
  void EnlargeText();
  void DisablePrevious();
  void LoadPictures();
  void ShowPicture(CStatic& control, int family, int dotsPerInch, qvx::OwnedBitmap& shown);

  CStatic m_picLeft, m_picTop;
  qvx::OwnedBitmap m_left, m_top;
  qvx::OwnedFont m_font;
};
