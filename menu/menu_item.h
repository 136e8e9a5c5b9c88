// One line of a menu. The parser, the compiled file's reader and the recent list create lines; the
// screen menu and the pop-ups read them and write only the label and icon of a switch line. A line
// owns its sub-menu when the bar's m_bOwned is 1.
#pragma once

#include "afx.h"
#include "kernel/twcstring.h"
#include "menu/record_memory.h"

class TMenuBar;
class TMenuSwitchItem;

// The initial capacity of each text. An empty text allocates nothing nevertheless.
constexpr int kMenuTextCapacity = 256;

class TMenuItem : public CObject {
  DECLARE_DYNAMIC(TMenuItem)

 public:
  static void* operator new(std::size_t bytes) { return NewRecord(bytes); }
  static void operator delete(void* record) noexcept { FreeRecord(record); }

  enum Flags : unsigned {
    kHasCheckFn = 1,  // m_strCheckFn is set
    kHasGrayFn = 2,   // m_strGrayFn is set
  };

  TMenuItem() = default;
  TMenuItem(const wchar_t* label, const wchar_t* command, const wchar_t* iconName = L"");
  // Copies everything except the sub-menu, which is null in the copy. The switch is shared.
  TMenuItem(const TMenuItem& other);
  TMenuItem& operator=(const TMenuItem&) = delete;
  ~TMenuItem() override;
  void Serialize(CArchive& ar) override;

  bool IsSeparator() const { return m_strLabel == L"--"; }
  bool IsSwitchMark() const;  // a "*SWITCH*" line without a switch so far

  TWCString m_strLabel{kMenuTextCapacity};
  TWCString m_strCommand{kMenuTextCapacity};  // empty: the line is disabled
  TMenuBar* m_pSubMenu = nullptr;
  TMenuSwitchItem* m_pSwitch = nullptr;  // one of the system's switches; not owned
  int m_nCommandId = 0;                  // assigned when a pop-up is built; not saved
  unsigned m_nFlags = 0;
  TWCString m_strCheckFn{kMenuTextCapacity};  // LISP function; T: the line is checked
  TWCString m_strGrayFn{kMenuTextCapacity};   // LISP function; T: the line is grey
  TWCString m_strIconName{kMenuTextCapacity};
  int m_nIconIndex = -1;  // into the system's resources
};
