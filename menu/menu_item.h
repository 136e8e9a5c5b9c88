// One line of a menu. The parser, the compiled file and the recent list make lines; the screen menu
// and the pop-ups read them, and write back only the label and icon of a switch line. A line owns
// its sub-menu unless that bar says otherwise.
#pragma once

#include "afx.h"
#include "kernel/twcstring.h"
#include "menu/record_memory.h"

class TMenuBar;
class TMenuSwitchItem;

// Every text promises room for this many characters; an empty one holds no storage all the same.
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
  // Everything but the sub-menu, which a copy never shares. The switch stays.
  TMenuItem(const TMenuItem& other);
  TMenuItem& operator=(const TMenuItem&) = delete;
  ~TMenuItem() override;
  void Serialize(CArchive& ar) override;

  bool IsSeparator() const { return m_strLabel == L"--"; }
  bool IsSwitchMark() const;  // a "*SWITCH*" line that still waits for its switch

  TWCString m_strLabel{kMenuTextCapacity};
  TWCString m_strCommand{kMenuTextCapacity};  // empty: the line is disabled
  TMenuBar* m_pSubMenu = nullptr;
  TMenuSwitchItem* m_pSwitch = nullptr;  // one of the system's switches; not owned
  int m_nCommandId = 0;                  // given out when a pop-up is built; in no file
  unsigned m_nFlags = 0;
  TWCString m_strCheckFn{kMenuTextCapacity};  // LISP function; T shows the line checked
  TWCString m_strGrayFn{kMenuTextCapacity};   // LISP function; T shows the line greyed
  TWCString m_strIconName{kMenuTextCapacity};
  int m_nIconIndex = -1;  // into the system's resources
};
