// All menus of one menu file: blocks, icon table, switch table, title, and the recent commands,
// which survive loading. There is one live system; it belongs to the context window. Source
// compiler and compiled file fill it.
#pragma once

#include "menu/menu_bar.h"
#include "menu/menu_resource.h"
#include "menu/menu_stack.h"
#include "menu/menu_switch.h"

class MenuBoxes;

class TMenuSystem : public CObject, public TDPtrList<TMenuBar> {
  DECLARE_DYNAMIC(TMenuSystem)

 public:
  // Throws what the archive throws; what was read until then stays. Reading empties the lists
  // first.
  void Serialize(CArchive& ar) override;

  // Searches over the blocks leave the cursor on the block where they ended.
  // Over all blocks in order; see TMenuBar.
  TMenuItem* FindItemByCommand(const wchar_t* command);
  TMenuBar* FindBar(const wchar_t* name);  // exact
  // Index of the first block of that name, case ignored; -1 when there is none.
  int FindBarIndexNoCase(const wchar_t* name);
  int FindResource(const wchar_t* name) const;  // index, exact; -1 when there is none

  // Blocks first: their lines point at switches.
  void EmptyLists();

  // Both tell what went wrong by a message box and return; an old file stays whole when a save
  // fails.
  void SaveCompiled(const wchar_t* path, MenuBoxes& boxes);
  void LoadCompiled(const wchar_t* path, MenuBoxes& boxes);

  // The one live system, which a lone bar or line that is written or read takes its switches from.
  // The context window sets it and takes it back; null without one.
  static TMenuSystem* Current();
  static void SetCurrent(TMenuSystem* system);

  unsigned m_nReserved1 = 0;
  unsigned m_nReserved2 = 0;
  TWCString m_strTitle{kMenuTextCapacity};
  TDPtrList<TMenuResItem> m_resources;
  TDPtrList<TMenuSwitchItem> m_switches;
  TMenuStack m_recent;
};
