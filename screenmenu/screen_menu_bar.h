// The navigation bar of the palette: it mirrors the lines of the current sub-menu and keeps a stack
// of the lines entered before. It owns neither lines nor bars. Also detaches the block of the
// screen menu from a newly loaded menu.
#pragma once

#include <memory>

#include "menu/menu_model.h"

class TScreenMenuBar : public TMenuBar {
 public:
  TScreenMenuBar();
  ~TScreenMenuBar() override;

  // Pushes the current line, if any, and mirrors the lines of the new one. Returns 1.
  int EnterSubMenu(TMenuItem* line);

  // Returns to a line that was entered before and pops those above it. Returns 1.
  // A line that is not on the stack empties the stack but not the mirrored lines: its own are
  // appended to them, so a second call with such a line shows every row twice. The list must
  // therefore be empty before a menu is attached; it is, since every reload makes a new palette.
  int BackTo(TMenuItem* line);

  // The line on top of the stack, null when it is empty.
  TMenuItem* StackTop() const { return m_stack.Last(); }
  bool IsOnStack(const TMenuItem* line) const { return StackPosition(line) >= 0; }
  TMenuItem* Current() const { return m_pCurrent; }

  // The bar of the line that was entered first.
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

// Detaches the first block named "SCREEN", in any case, from the system. Null, and nothing changed,
// when there is none.
std::unique_ptr<TMenuBar> DetachScreenBar(TMenuSystem& system);

// Clears the switch pointers in a bar and all bars below it, because the switches are destroyed:
// rows that still show such lines keep their captions and ignore clicks.
void DropSwitches(TMenuBar& bar);

// The root line's label: the menu's title, or the product's default name without one.
const wchar_t* RootTitle(const TMenuSystem& system);

}  // namespace qvx
