#include "words_dialog.h"

#include "resource_ids.h"
#include "text_file.h"

BEGIN_MESSAGE_MAP(CWordsDialog, CChooseDialog)
ON_COMMAND(IDC_ADD, OnAdd)
END_MESSAGE_MAP()

CWordsDialog::CWordsDialog(std::wstring file, CWnd* parent)
    : CChooseDialog(IDD_WORDS, parent),
      m_file(std::move(file)),
      m_text(ReadTextFile(m_file)),
      m_groups(WordsOf(m_text)) {}

std::vector<CString> CWordsDialog::Groups() {
  std::vector<CString> names;
  for (const WordGroup& group : m_groups) names.push_back(group.name.c_str());
  return names;
}

std::vector<CString> CWordsDialog::Entries(int group) {
  std::vector<CString> words;
  for (const std::wstring& word : m_groups[static_cast<std::size_t>(group)].words)
    words.push_back(word.c_str());
  return words;
}

void CWordsDialog::OnAdd() {
  const int group = SelectedGroup();
  if (group < 0) return;
  CString word;
  GetDlgItem(IDC_WORD)->GetWindowText(word);
  const std::wstring text =
      WithWord(m_text, m_groups[static_cast<std::size_t>(group)].name, word.GetString());
  if (text == m_text) return;
  if (!WriteTextFile(m_file, text)) {
    MessageBox(L"词库文件无法写入: " + CString(m_file.c_str()), L"词库", MB_OK | MB_ICONWARNING);
    return;
  }
  m_text = text;
  m_groups = WordsOf(m_text);
  ShowEntries();
  const int last = static_cast<int>(m_groups[static_cast<std::size_t>(group)].words.size()) - 1;
  ::SendDlgItemMessageW(m_hWnd, IDC_ENTRIES, LB_SETCURSEL, static_cast<WPARAM>(last), 0);
  GetDlgItem(IDC_WORD)->SetWindowText(L"");
}
