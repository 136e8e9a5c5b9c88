// The model of one menu file: blocks, icon table, switch table and title; and the recent list,
// which loading does not change. The source compiler or the compiled file's reader fills it. The
// context window owns the menu in force.
#pragma once

#include "menu/menu_bar.h"
#include "menu/menu_resource.h"
#include "menu/menu_stack.h"
#include "menu/menu_switch.h"

class MenuBoxes;

class TMenuSystem : public CObject, public TDPtrList<TMenuBar> {
  DECLARE_DYNAMIC(TMenuSystem)

 public:
  // Throws the archive's exceptions; what was read before is kept. Reading empties the lists first.
  void Serialize(CArchive& ar) override;

  // Searches over the blocks leave the cursor on the block where they ended. In all blocks in
  // order; see TMenuBar.
  TMenuItem* FindItemByCommand(const wchar_t* command);
  TMenuBar* FindBar(const wchar_t* name);  // exact
  // Index of the first block of that name, case ignored; -1 when there is none.
  int FindBarIndexNoCase(const wchar_t* name);
  int FindResource(const wchar_t* name) const;  // index, exact; -1 when there is none

  // Empties blocks first: their lines point to switches.
  void EmptyLists();

  // Errors are shown in a message box. A failed save leaves the old file unchanged.
  void SaveCompiled(const wchar_t* path, MenuBoxes& boxes);
  void LoadCompiled(const wchar_t* path, MenuBoxes& boxes);

  // The menu in force, whose switch table Serialize of a single bar or line uses; null without a
  // context window, which sets it.
  static TMenuSystem* Current();
  static void SetCurrent(TMenuSystem* system);

  unsigned m_nReserved1 = 0;
  unsigned m_nReserved2 = 0;
  TWCString m_strTitle{kMenuTextCapacity};
  TDPtrList<TMenuResItem> m_resources;
  TDPtrList<TMenuSwitchItem> m_switches;
  TMenuStack m_recent;
};
