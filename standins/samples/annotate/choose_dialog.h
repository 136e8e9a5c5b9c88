// The base of both dialogs: a list of groups, and the entries of the selected group.
#pragma once

#include "afxwin.h"
#include "afxext.h"

#include <vector>

#include "acui.h"

class CChooseDialog : public CAcUiDialog {
 public:
  const CString& Choice() const { return m_choice; }

 protected:
  CChooseDialog(UINT number, CWnd* parent);

  BOOL OnInitDialog() override;
  void OnOK() override;
  virtual std::vector<CString> Groups() = 0;
  virtual std::vector<CString> Entries(int group) = 0;
  virtual void OnEntrySelected(const CString&) {}
  int SelectedGroup();
  CString SelectedEntry();  // empty without one
  void ShowEntries();
  void FillList(int list, const std::vector<CString>& texts);

  CString m_choice;

  afx_msg void OnGroup();
  afx_msg void OnEntry();
  afx_msg void OnEntryChosen();
  DECLARE_MESSAGE_MAP()
};
