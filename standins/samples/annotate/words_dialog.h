// The dialog of the word library. A typed word can be added to the selected group; it is saved at
// once.
#pragma once

#include <string>

#include "choose_dialog.h"
#include "word_library.h"

class CWordsDialog : public CChooseDialog {
 public:
  CWordsDialog(std::wstring file, CWnd* parent);

 protected:
  std::vector<CString> Groups() override;
  std::vector<CString> Entries(int group) override;

  afx_msg void OnAdd();
  DECLARE_MESSAGE_MAP()

 private:
  std::wstring m_file, m_text;
  std::vector<WordGroup> m_groups;
};
