// A list of menu lines: a named block of the file or the sub-menu of a line. Sub-menus may be
// nested without limit (a hostile file nests a million of them), so that search, traversal and
// deletion use a list on the heap and no recursion.
#pragma once

#include <vector>

#include "frame/containers/tdptrlist.h"
#include "kernel/trblist.h"
#include "menu/menu_item.h"

class TMenuBar : public CObject, public TDPtrList<TMenuItem> {
  DECLARE_DYNAMIC(TMenuBar)

 public:
  static void* operator new(std::size_t bytes) { return NewRecord(bytes); }
  static void operator delete(void* record) noexcept { FreeRecord(record); }

  TMenuBar() = default;
  ~TMenuBar() override;
  void Serialize(CArchive& ar) override;

  // Depth first; the first exact match. Lines with a sub-menu are not compared, only searched. Each
  // bar's cursor is left on the line where its part of the search ended.
  TMenuItem* FindItemByCommand(const wchar_t* command);
  // The same by number; separators are not compared.
  TMenuItem* FindItemById(int id);
  // Top level only.
  TMenuItem* FindItemByLabel(const wchar_t* label);

  // Deletes a bar with all sub-menus; null is allowed.
  static void Delete(TMenuBar* bar);

  TWCString m_strName{kMenuTextCapacity};  // empty for a sub-menu
  TWCString m_strKind{kMenuTextCapacity};
  TRBList m_objectMask;
  unsigned char m_bOwned = 1;  // 1: the line with this sub-menu deletes it

 private:
  static void CollectSubMenus(TMenuBar& bar, TMenuBar*& chain);
  static void DeleteChain(TMenuBar* chain);

  TMenuBar* m_pNextToDelete = nullptr;  // used only while a tree is deleted
};

// Visits all lines of a bar and its sub-menus in the order of the file: a line before its sub-menu.
class MenuWalk {
 public:
  explicit MenuWalk(TMenuBar& bar) { m_path.push_back({&bar, 0}); }
  TMenuItem* Next();  // null at the end

 private:
  struct Place {
    TMenuBar* bar;
    int next;
  };
  std::vector<Place> m_path;
};
