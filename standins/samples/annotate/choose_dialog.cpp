#include "choose_dialog.h"

#include "resource_ids.h"

BEGIN_MESSAGE_MAP(CChooseDialog, CAcUiDialog)
ON_LBN_SELCHANGE(IDC_GROUPS, OnGroup)
ON_LBN_SELCHANGE(IDC_ENTRIES, OnEntry)
ON_LBN_DBLCLK(IDC_ENTRIES, OnEntryChosen)
END_MESSAGE_MAP()

CChooseDialog::CChooseDialog(UINT number, CWnd* parent) : CAcUiDialog(number, parent) {}

BOOL CChooseDialog::OnInitDialog() {
  CAcUiDialog::OnInitDialog();
  FillList(IDC_GROUPS, Groups());
  ShowEntries();
  return TRUE;
}

void CChooseDialog::FillList(int list, const std::vector<CString>& texts) {
  const HWND window = GetDlgItem(list)->m_hWnd;
  ::SendMessageW(window, LB_RESETCONTENT, 0, 0);
  for (const CString& text : texts)
    ::SendMessageW(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.GetString()));
  ::SendMessageW(window, LB_SETCURSEL, 0, 0);
}

int CChooseDialog::SelectedGroup() {
  return static_cast<int>(::SendDlgItemMessageW(m_hWnd, IDC_GROUPS, LB_GETCURSEL, 0, 0));
}

CString CChooseDialog::SelectedEntry() {
  const HWND list = GetDlgItem(IDC_ENTRIES)->m_hWnd;
  const LRESULT at = ::SendMessageW(list, LB_GETCURSEL, 0, 0);
  const LRESULT length =
      at < 0 ? LB_ERR : ::SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(at), 0);
  if (length <= 0) return CString();
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
  ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(text.data()));
  return text.data();
}

void CChooseDialog::ShowEntries() {
  const int group = SelectedGroup();
  FillList(IDC_ENTRIES, group < 0 ? std::vector<CString>() : Entries(group));
  OnEntry();
}

void CChooseDialog::OnOK() {
  m_choice = SelectedEntry();
  if (m_choice.IsEmpty()) return;  // nothing to insert: the dialog stays open
  CAcUiDialog::OnOK();
}

void CChooseDialog::OnGroup() { ShowEntries(); }

void CChooseDialog::OnEntry() { OnEntrySelected(SelectedEntry()); }

void CChooseDialog::OnEntryChosen() { OnOK(); }
