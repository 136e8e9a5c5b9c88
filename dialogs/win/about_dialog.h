// The dialog "产品版本信息": product texts from the product file, and two links. Create it while
// the module's resources are current.
#pragma once

#include "afxwin.h"
#include "ground/win/owned_handle.h"
#include "dialogs/product_texts.h"
#include "ground/win/guarded_window.h"
#include "kernel/win/glw_ac_ui_dialog.h"
#include "kernel/win/hyper_link.h"

class CAboutVexraDlg : public qvx::GuardedWindow<GlwCAcUiDialog> {
 public:
  explicit CAboutVexraDlg(CWnd* parent);

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  BOOL OnInitDialog() override;

 private:
  CStatic m_icon;
  CHyperLink m_linkWeb, m_linkMail;  // the web link's address is its own text
  CString m_strName, m_strGroup, m_strVersion, m_strSubVer, m_strMail;
  qvx::OwnedIcon m_hIcon;
};
