#include "menu/menu_switch.h"

IMPLEMENT_DYNAMIC(TSwitchStateItem, CObject)
IMPLEMENT_DYNAMIC(TMenuSwitchItem, CObject)

TSwitchStateItem* TMenuSwitchItem::FindState(int value) {
  for (int i = 0; i < m_states.Length(); ++i)
    if (TSwitchStateItem* state = m_states[i]; state->m_nValue == value) return state;
  return m_states.First();
}
