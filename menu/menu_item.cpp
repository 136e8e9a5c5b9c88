#include "menu/menu_item.h"

#include "menu/fold_case.h"

IMPLEMENT_DYNAMIC(TMenuItem, CObject)

TMenuItem::TMenuItem(const wchar_t* label, const wchar_t* command, const wchar_t* iconName)
    : m_strLabel(label), m_strCommand(command), m_strIconName(iconName) {}

TMenuItem::TMenuItem(const TMenuItem& other)
    : m_strLabel(other.m_strLabel),
      m_strCommand(other.m_strCommand),
      m_pSwitch(other.m_pSwitch),
      m_nCommandId(other.m_nCommandId),
      m_nFlags(other.m_nFlags),
      m_strCheckFn(other.m_strCheckFn),
      m_strGrayFn(other.m_strGrayFn),
      m_strIconName(other.m_strIconName),
      m_nIconIndex(other.m_nIconIndex) {}

bool TMenuItem::IsSwitchMark() const {
  return !m_pSubMenu && !m_pSwitch && EqualNamesNoCase(m_strLabel, L"*SWITCH*");
}
