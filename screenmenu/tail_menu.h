// The pop-up of a right click on the palette, as lines of the menu model: help for a line, jumps to
// the root's groups, the customising command. Also decides what a chosen line does. Does not show
// the pop-up.
#pragma once

#include <memory>

#include "menu/menu_model.h"
#include "screenmenu/screen_menu_bar.h"

namespace qvx {

inline constexpr wchar_t kHelpLabel[] = L"实时助手";

struct TailMenuParts {
  bool withHelp;
  bool limitHeight;           // true: no jumps
  const TMenuBar* rootBar;    // may be null
  const TMenuSystem* system;  // for the icons; may be null
  const wchar_t* customize;   // the customising command's full name
};
std::unique_ptr<TMenuBar> BuildTailMenu(const TailMenuParts& parts);

struct TailChoice {
  enum class Kind { kNothing, kHelp, kToggle } kind;
  int index;  // of the root's row, for kToggle
};
// `text` is the chosen command without its leading "*".
TailChoice DecideTail(const wchar_t* text, const TScreenMenuBar& bar);

// X of a header's pop-up: the side of the button that is farther from the frame's edge.
int HeaderPopupX(const RECT& button, const RECT& frame);

}  // namespace qvx
