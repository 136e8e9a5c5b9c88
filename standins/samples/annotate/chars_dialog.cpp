#include "chars_dialog.h"

#include "resource_ids.h"
#include "special_chars.h"

CCharsDialog::CCharsDialog(CWnd* parent) : CChooseDialog(IDD_CHARS, parent) {}

BOOL CCharsDialog::OnInitDialog() {
  RECT box{};
  ::GetClientRect(GetDlgItem(IDC_LARGE)->m_hWnd, &box);
  LOGFONT font{};
  GetFont()->GetLogFont(&font);
  const LONG small = font.lfHeight;
  font.lfHeight = -box.bottom * 2 / 3;
  if (m_large.CreateFontIndirect(&font)) GetDlgItem(IDC_LARGE)->SetFont(&m_large);
  const LONG column = (small < 0 ? -small : small) * 5 / 2;
  ::SendDlgItemMessageW(m_hWnd, IDC_ENTRIES, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(column), 0);
  return CChooseDialog::OnInitDialog();
}

std::vector<CString> CCharsDialog::Groups() {
  std::vector<CString> names;
  for (const CharGroup& group : SpecialChars()) names.push_back(group.name);
  return names;
}

std::vector<CString> CCharsDialog::Entries(int group) {
  std::vector<CString> chars;
  for (const wchar_t* at = SpecialChars()[static_cast<std::size_t>(group)].chars; *at; ++at)
    chars.push_back(CString(*at));
  return chars;
}

void CCharsDialog::OnEntrySelected(const CString& entry) {
  GetDlgItem(IDC_LARGE)->SetWindowText(entry);
}
