// The rooms beside the screen menu, and the owner of the menu in force, as a test can look into
// them. Linked instead of the pop-ups and the status bar's panes.
#pragma once

#include <functional>
#include <string>

#include "ground/host_lisp.h"
#include "menu/menu_in_force.h"

struct RoomsDouble {
  bool popupShown = false;        // refuses another pop-up
  POINT shownAt{};                // of that block, on the screen
  int shownLines = 0;             // of the last block that was shown as a pop-up
  int panesUpdated = 0;           // calls of UpdateStatusPanes
  std::string order;              // of the calls for another drawing: scale a, panes b, text c,
                                  // preview d
  std::function<void()> onPanes;  // what an update of the panes does beside being counted
};
RoomsDouble& TheRooms();

// The menu in force without a context window; LISP functions are the host's.
class MenuDouble : public MenuInForce {
 public:
  TMenuSystem& System() override { return system; }
  qvx::LineSources Lines() override;
  void ForgetLines() override { life.Renew(); }
  void SetToolBar(TMenuBar*) override {}

  TMenuSystem system;

 private:
  qvx::HostLisp lisp;
  qvx::MenuLife life;
};
