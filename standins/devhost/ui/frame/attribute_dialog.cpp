// The dialog of EATTEDIT; see the header. Its template is built in memory: the host has no
// resources.
#include "devhost/ui/frame/attribute_dialog.h"

#include <commctrl.h>

#include <utility>

namespace devhost {
namespace {

// In dialog units.
constexpr short kWidth = 260, kHeight = 156, kMargin = 7;

// A dialog template: words in the order that the system reads.
class TemplateWords {
 public:
  explicit TemplateWords(const wchar_t* title) {
    Double(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT | DS_CENTER);
    Double(0);
    m_count = m_words.size();
    for (const short word : {short{0}, short{0}, short{0}, kWidth, kHeight}) Word(word);
    Word(0);  // no menu
    Word(0);  // the system's class
    Text(title);
    Word(9);
    Text(L"MS Shell Dlg");
  }

  void Add(const wchar_t* className, int id, DWORD style, const RECT& place, const wchar_t* text,
           DWORD extended = 0) {
    if (m_words.size() % 2) Word(0);  // items begin at multiples of four bytes
    Double(style | WS_CHILD | WS_VISIBLE);
    Double(extended);
    for (const LONG at :
         {place.left, place.top, place.right - place.left, place.bottom - place.top})
      Word(static_cast<short>(at));
    Word(static_cast<short>(id));
    Text(className);
    Text(text);
    Word(0);  // no data
    ++m_words[m_count];
  }

  std::vector<WORD> Take() { return std::move(m_words); }

 private:
  void Word(short value) { m_words.push_back(static_cast<WORD>(value)); }
  void Double(DWORD value) {
    m_words.push_back(LOWORD(value));
    m_words.push_back(HIWORD(value));
  }
  void Text(const wchar_t* text) {
    do m_words.push_back(static_cast<WORD>(*text));
    while (*text++);
  }

  std::vector<WORD> m_words;
  std::size_t m_count = 0;  // index of the number of items
};

std::vector<WORD> MakeTemplate() {
  TemplateWords words(L"增强属性编辑器");
  const LONG right = kWidth - kMargin;
  words.Add(L"STATIC", AttributeDialog::kBlock, SS_LEFT | SS_NOPREFIX, {kMargin, 7, right, 16},
            L"");
  words.Add(WC_LISTVIEWW, AttributeDialog::kList,
            WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
            {kMargin, 20, right, 110}, L"", WS_EX_CLIENTEDGE);
  words.Add(L"STATIC", AttributeDialog::kLabel, SS_LEFT, {kMargin, 118, 36, 127}, L"值(&V):");
  words.Add(L"EDIT", AttributeDialog::kValue, WS_TABSTOP | ES_AUTOHSCROLL, {38, 116, right, 129},
            L"", WS_EX_CLIENTEDGE);
  words.Add(L"BUTTON", IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, {right - 107, 135, right - 57, 149},
            L"确定");
  words.Add(L"BUTTON", IDCANCEL, WS_TABSTOP | BS_PUSHBUTTON, {right - 50, 135, right, 149},
            L"取消");
  return words.Take();
}

}  // namespace

BEGIN_MESSAGE_MAP(AttributeDialog, CDialog)
ON_EN_CHANGE(AttributeDialog::kValue, OnValueChanged)
ON_NOTIFY(LVN_ITEMCHANGED, AttributeDialog::kList, OnRowChanged)
END_MESSAGE_MAP()

AttributeDialog::AttributeDialog(std::wstring block, std::vector<AttributeValue> values,
                                 CWnd* parent)
    : m_template(MakeTemplate()), m_block(std::move(block)), m_values(std::move(values)) {
  const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES};
  ::InitCommonControlsEx(&controls);
  InitModalIndirect(reinterpret_cast<LPCDLGTEMPLATE>(m_template.data()), parent);
}

BOOL AttributeDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  ::SetDlgItemTextW(m_hWnd, kBlock, (L"块: " + m_block).c_str());
  ::SendDlgItemMessageW(m_hWnd, kList, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT,
                        LVS_EX_FULLROWSELECT);
  ::SendDlgItemMessageW(m_hWnd, kValue, EM_SETLIMITTEXT, 0, 0);
  AddColumn(kTagColumn, L"标记", 28);
  AddColumn(kPromptColumn, L"提示", 36);
  AddColumn(kValueColumn, L"值", 34);
  for (int row = 0; row < static_cast<int>(m_values.size()); ++row) AddRow(row);
  LVITEMW selected{};
  selected.state = selected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  ::SendDlgItemMessageW(m_hWnd, kList, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&selected));
  ShowRow(0);
  ::SetFocus(::GetDlgItem(m_hWnd, kValue));
  return FALSE;
}

void AttributeDialog::AddColumn(Column column, const wchar_t* title, int percent) {
  RECT list{};
  ::GetClientRect(::GetDlgItem(m_hWnd, kList), &list);
  LVCOLUMNW head{};
  head.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
  head.cx = (list.right - list.left) * percent / 100;
  head.pszText = const_cast<wchar_t*>(title);
  head.iSubItem = column;
  ::SendDlgItemMessageW(m_hWnd, kList, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column),
                        reinterpret_cast<LPARAM>(&head));
}

void AttributeDialog::AddRow(int row) {
  const AttributeValue& value = m_values[static_cast<std::size_t>(row)];
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.pszText = const_cast<wchar_t*>(value.tag.c_str());
  ::SendDlgItemMessageW(m_hWnd, kList, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  SetCell(row, kPromptColumn, value.prompt);
  SetCell(row, kValueColumn, value.value);
}

void AttributeDialog::SetCell(int row, Column column, const std::wstring& text) {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = const_cast<wchar_t*>(text.c_str());
  ::SendDlgItemMessageW(m_hWnd, kList, LVM_SETITEMTEXTW, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
}

void AttributeDialog::ShowRow(int row) {
  if (row < 0 || row >= static_cast<int>(m_values.size())) return;
  m_row = row;
  m_showing = true;
  ::SetDlgItemTextW(m_hWnd, kValue, m_values[static_cast<std::size_t>(row)].value.c_str());
  m_showing = false;
  ::SendDlgItemMessageW(m_hWnd, kValue, EM_SETSEL, 0, -1);
}

void AttributeDialog::OnValueChanged() {
  if (m_showing || m_row < 0) return;
  CString text;
  GetDlgItem(kValue)->GetWindowText(text);
  m_values[static_cast<std::size_t>(m_row)].value = text.GetString();
  SetCell(m_row, kValueColumn, text.GetString());
}

void AttributeDialog::OnRowChanged(NMHDR* header, LRESULT* result) {
  const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
  *result = 0;
  if ((change->uNewState & LVIS_SELECTED) && change->iItem != m_row) ShowRow(change->iItem);
}

}  // namespace devhost
