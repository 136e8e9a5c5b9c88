// The dialog of special characters, with a large picture of the selected one.
#pragma once

#include "choose_dialog.h"

class CCharsDialog : public CChooseDialog {
 public:
  explicit CCharsDialog(CWnd* parent);

 protected:
  BOOL OnInitDialog() override;
  std::vector<CString> Groups() override;
  std::vector<CString> Entries(int group) override;
  void OnEntrySelected(const CString& entry) override;

 private:
  CFont m_large;
};
