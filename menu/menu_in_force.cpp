#include "menu/menu_in_force.h"

namespace {
MenuInForce* g_menu = nullptr;
}  // namespace

MenuInForce* TheMenuInForce() { return g_menu; }

void SetMenuInForce(MenuInForce* menu) { g_menu = menu; }

TMenuSystem* LoadedMenu() { return g_menu ? &g_menu->System() : nullptr; }

qvx::LineSources MenuLines() { return g_menu ? g_menu->Lines() : qvx::LineSources{}; }

void ForgetMenuLines() {
  if (g_menu) g_menu->ForgetLines();
}

void NoteRecentCommand(const wchar_t* command) {
  if (TMenuSystem* system = LoadedMenu()) system->m_recent.AddRecent(command);
}
