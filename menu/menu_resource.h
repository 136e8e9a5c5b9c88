// One entry of the icon table: the key that lines name, the bitmap's name in the icon library, and
// the help text of the lines that use it.
#pragma once

#include "menu/menu_item.h"

class TMenuResItem : public CObject {
  DECLARE_DYNAMIC(TMenuResItem)

 public:
  static void* operator new(std::size_t bytes) { return NewRecord(bytes); }
  static void operator delete(void* record) noexcept { FreeRecord(record); }

  TMenuResItem() = default;
  TMenuResItem(const wchar_t* name, const wchar_t* image, const wchar_t* image2);
  void Serialize(CArchive& ar) override;

  TWCString m_strName{kMenuTextCapacity};
  TWCString m_strImage{kMenuTextCapacity};
  TWCString m_strImage2{kMenuTextCapacity};
};
