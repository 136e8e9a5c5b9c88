// The dialog of EATTEDIT: a list of the attributes of a block reference with tag, prompt and value,
// and a box for the value of the selected one.
#pragma once

#include "afxwin.h"

#include <string>
#include <vector>

#include "devhost/core/host/host_ui.h"

namespace devhost {

class AttributeDialog : public CDialog {
 public:
  enum Control { kBlock = 100, kList, kLabel, kValue };
  enum Column { kTagColumn, kPromptColumn, kValueColumn };

  AttributeDialog(std::wstring block, std::vector<AttributeValue> values, CWnd* parent);
  const std::vector<AttributeValue>& Values() const { return m_values; }

 protected:
  BOOL OnInitDialog() override;

  afx_msg void OnValueChanged();
  afx_msg void OnRowChanged(NMHDR* header, LRESULT* result);
  DECLARE_MESSAGE_MAP()

 private:
  void AddColumn(Column column, const wchar_t* title, int percent);
  void AddRow(int row);
  void SetCell(int row, Column column, const std::wstring& text);
  void ShowRow(int row);

  std::vector<WORD> m_template;
  std::wstring m_block;
  std::vector<AttributeValue> m_values;
  int m_row = -1;          // whose value the box shows
  bool m_showing = false;  // the box is being filled
};

}  // namespace devhost
