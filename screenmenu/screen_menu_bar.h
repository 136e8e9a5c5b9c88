// The bar that the palette navigates with: it mirrors the lines of the sub-menu it stands in and
// remembers the lines it came through. It owns neither the lines nor the bars. Also the step that
// takes the block of the screen menu out of a menu that has just been loaded.
#pragma once

#include <memory>

#include "menu/menu_model.h"

class TScreenMenuBar : public TMenuBar {
 public:
  TScreenMenuBar();
  ~TScreenMenuBar() override;

  // Remembers the line it stands in, if any, and mirrors the lines of the new one. Returns 1.
  int EnterSubMenu(TMenuItem* line);

  // Goes back to a line that was entered before and forgets those behind it. Returns 1.
  // A line that is not on the stack empties the stack but not the mirrored lines: its own are put
  // behind whatever the list holds. So a second call with such a line shows every row twice; the
  // list has to be empty before a menu is attached, and it is, since every reload makes a new
  // palette.
  int BackTo(TMenuItem* line);

  // The line on top of the stack, null when it is empty.
  TMenuItem* StackTop() const { return m_stack.Last(); }
  bool IsOnStack(const TMenuItem* line) const { return StackPosition(line) >= 0; }
  TMenuItem* Current() const { return m_pCurrent; }

  // The bar at the top of the navigation: that of the line entered first.
  TMenuBar* RootBar() const;

  // Position of a line among the mirrored ones, -1 when it is not there.
  int PositionOf(const TMenuItem* line) const;

 private:
  int StackPosition(const TMenuItem* line) const;
  void Mirror(TMenuItem* line);

  TDPtrStack<TMenuItem> m_stack;    // oldest first, not owned
  TMenuItem* m_pCurrent = nullptr;  // the line whose sub-menu is mirrored, not owned
};

namespace qvx {

// Takes the first block named "SCREEN", in any case, out of the system without deleting it. Null,
// and nothing changed, when there is none.
std::unique_ptr<TMenuBar> DetachScreenBar(TMenuSystem& system);

// Takes the switches from the lines of a bar and of all below it, because they are gone: rows that
// still show such lines keep their captions and do nothing more.
void DropSwitches(TMenuBar& bar);

// What the root line is called: the menu's title, or the product's usual name without one.
const wchar_t* RootTitle(const TMenuSystem& system);

}  // namespace qvx
