#include "menu/menu_system.h"

#include "menu/fold_case.h"

IMPLEMENT_DYNAMIC(TMenuSystem, CObject)

namespace {
TMenuSystem* g_current = nullptr;
}

TMenuSystem* TMenuSystem::Current() { return g_current; }
void TMenuSystem::SetCurrent(TMenuSystem* system) { g_current = system; }

TMenuItem* TMenuSystem::FindItemByCommand(const wchar_t* command) {
  for (int i = 0; i < Length(); ++i)
    if (TMenuItem* item = (*this)[i]->FindItemByCommand(command)) return item;
  return nullptr;
}

TMenuBar* TMenuSystem::FindBar(const wchar_t* name) {
  for (int i = 0; i < Length(); ++i)
    if (TMenuBar* bar = (*this)[i]; bar->m_strName == name) return bar;
  return nullptr;
}

int TMenuSystem::FindBarIndexNoCase(const wchar_t* name) {
  for (int i = 0; i < Length(); ++i)
    if (EqualNamesNoCase((*this)[i]->m_strName, std::wstring_view(name))) return i;
  return -1;
}

int TMenuSystem::FindResource(const wchar_t* name) const {
  for (int i = 0; i < m_resources.Length(); ++i)
    if (m_resources.At(i)->m_strName == name) return i;
  return -1;
}

void TMenuSystem::EmptyLists() {
  Clear();
  m_resources.Clear();
  m_switches.Clear();
}
