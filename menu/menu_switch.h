// A switch and its states. A line with a switch calls the get function, shows label and icon of the
// state with the returned number, and calls the set function when it is chosen.
#pragma once

#include "frame/containers/tdptrlist.h"
#include "menu/menu_item.h"

class TSwitchStateItem : public CObject {
  DECLARE_DYNAMIC(TSwitchStateItem)

 public:
  static void* operator new(std::size_t bytes) { return NewRecord(bytes); }
  static void operator delete(void* record) noexcept { FreeRecord(record); }

  void Serialize(CArchive& ar) override;

  int m_nValue = 0;
  TWCString m_strIconName{kMenuTextCapacity};
  TWCString m_strLabel{kMenuTextCapacity};
  int m_nIconIndex = -1;
};

class TMenuSwitchItem : public CObject {
  DECLARE_DYNAMIC(TMenuSwitchItem)

 public:
  static void* operator new(std::size_t bytes) { return NewRecord(bytes); }
  static void operator delete(void* record) noexcept { FreeRecord(record); }

  void Serialize(CArchive& ar) override;

  // Returns the first state for an unknown value, so that a switch always shows a state; null only
  // when there are no states.
  TSwitchStateItem* FindState(int value);

  TWCString m_strName{kMenuTextCapacity};
  TWCString m_strGetFn{kMenuTextCapacity};
  TWCString m_strSetFn{kMenuTextCapacity};
  TDPtrList<TSwitchStateItem> m_states;
};
