// A menu in force without a context window: registers itself while it lives.
#pragma once

#include "menu/menu_in_force.h"

class LoadedMenuDouble : public MenuInForce {
 public:
  LoadedMenuDouble() { SetMenuInForce(this); }
  ~LoadedMenuDouble() { SetMenuInForce(nullptr); }
  TMenuSystem& System() override { return system; }
  qvx::LineSources Lines() override { return {nullptr, &system, false, life.Watch()}; }
  void ForgetLines() override { life.Renew(); }
  void SetToolBar(TMenuBar*) override {}

  TMenuSystem system;
  qvx::MenuLife life;
};
