// CDialog: a window from a dialog template, modal or not, and CDataExchange, the record that
// transfers values between members and controls. Included by afxwin.h.
//
// A modal dialog runs a loop of this library instead of Windows' own, so the thread's
// PreTranslateMessage and its filters get every message while the dialog is open.
#pragma once

class CDataExchange {
 public:
  CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
      : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
  BOOL m_bSaveAndValidate;  // TRUE: from the controls to the members
  CWnd* m_pDlgWnd;
  int m_idLastControl = 0;
  BOOL m_bEditLastControl = FALSE;

  // The control's window; throws CNotSupportedException if the dialog has no such control.
  HWND PrepareCtrl(int nIDC);
  HWND PrepareEditCtrl(int nIDC);
  // Sets the focus to the last control prepared and throws CUserException.
  [[noreturn]] void Fail();
};

class CDialog : public CWnd {
  DECLARE_DYNAMIC(CDialog)
 public:
  CDialog() = default;  // for modeless dialogs
  explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr)
      : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}
  explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr)
      : m_nIDHelp(nIDTemplate),
        m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)),
        m_pParentWnd(pParentWnd) {}
  ~CDialog() override;

  using CWnd::Create;
  virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
  virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
  }
  virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                              void* lpDialogInit = nullptr);
  virtual BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                 void* lpDialogInit = nullptr);
  // -1 if the dialog could not be created, else the value of EndDialog.
  virtual INT_PTR DoModal();
  void EndDialog(int nResult);

  void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
  void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
  void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
  void GotoDlgCtrl(CWnd* pWndCtrl) {
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), 1);
  }
  void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
  DWORD GetDefID() const { return DWORD(SendMessage(DM_GETDEFID)); }

  // TRUE: Windows sets the focus to the first control.
  virtual BOOL OnInitDialog();
  virtual void OnSetFont(CFont*) {}
  virtual void PreInitDialog() {}
  BOOL PreTranslateMessage(MSG* pMsg) override;
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  UINT m_nIDHelp = 0;
  LPCTSTR m_lpszTemplateName = nullptr;
  HGLOBAL m_hDialogTemplate = nullptr;
  LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
  void* m_lpDialogInit = nullptr;
  CWnd* m_pParentWnd = nullptr;
  HWND m_hWndTop = nullptr;

  virtual void OnOK();
  virtual void OnCancel();
  BOOL CheckAutoCenter() override;
  // Returns the owner of the modal dialog, disabled until PostModal.
  HWND PreModal();
  void PostModal();
  BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);
  afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

  DECLARE_MESSAGE_MAP()
};
