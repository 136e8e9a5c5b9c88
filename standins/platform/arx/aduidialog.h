// CAdUiBaseDialog and CAdUiDialog: modal or modeless dialogs created from the resources
// of the module given to them. Not offered: tips, saved sizes, tabs, messages of the
// host. Included by adui.h.
#pragma once

#ifndef __AFXWIN_H__
#error "include afxwin.h first"
#endif

class CAdUiBaseDialog : public CDialog {
  DECLARE_DYNAMIC(CAdUiBaseDialog)
 public:
  // hDialogResource null: the resources that are current when the dialog is created.
  explicit CAdUiBaseDialog(UINT idd, CWnd* pParent = nullptr, HINSTANCE hDialogResource = nullptr);

  INT_PTR DoModal() override;
  using CDialog::Create;
  BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) override;
  CString GetAppName() const { return m_appName; }
  void SetAppName(LPCTSTR name) { m_appName = name; }
  CString GetDialogName() const { return m_dialogName; }
  void SetDialogName(LPCTSTR name) { m_dialogName = name; }

 protected:
  HINSTANCE m_hDialogResourceSaved;

 private:
  CString m_appName, m_dialogName;
};

class CAdUiDialog : public CAdUiBaseDialog {
  DECLARE_DYNAMIC(CAdUiDialog)
 public:
  using CAdUiBaseDialog::CAdUiBaseDialog;
};
