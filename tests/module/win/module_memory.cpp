#include "tests/module/win/module_memory.h"

#include <cstring>
#include <new>

namespace {

int g_failAt = 0, g_requests = 0;
bool g_hasFailed = false;

void* Allocate(std::size_t bytes) {
  if (++g_requests == g_failAt) {
    g_hasFailed = true;
    throw std::bad_alloc();
  }
  return ::operator new(bytes);
}

// The slots of a module's import table that hold a function of this name.
void** FindSlot(HMODULE module, const char* name) {
  const auto base = reinterpret_cast<const char*>(module);
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const DWORD place =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + place);
       library->Name; ++library) {
    auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
    auto** slot = reinterpret_cast<void**>(const_cast<char*>(base) + library->FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* import =
          reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
      if (!std::strcmp(reinterpret_cast<const char*>(import->Name), name)) return slot;
    }
  }
  return nullptr;
}

void Store(void** slot, void* value) {
  DWORD before = 0;
  ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
  *slot = value;
  ::VirtualProtect(slot, sizeof *slot, before, &before);
}

}  // namespace

ModuleMemory::ModuleMemory(const wchar_t* module) : m_module(::GetModuleHandleW(module)) {
  g_failAt = g_requests = 0;
  Patch("_Znwy", reinterpret_cast<void*>(&Allocate));
  Patch("_Znay", reinterpret_cast<void*>(&Allocate));
}

ModuleMemory::~ModuleMemory() {
  for (int i = 0; i < m_count; ++i) Store(m_slots[i], m_before[i]);
}

void ModuleMemory::Patch(const char* name, void* replacement) {
  void** slot = m_module ? FindSlot(m_module, name) : nullptr;
  if (!slot) return;
  m_slots[m_count] = slot;
  m_before[m_count++] = *slot;
  Store(slot, replacement);
}

void ModuleMemory::FailAt(int number) {
  g_failAt = number;
  g_requests = 0;
  g_hasFailed = false;
}
bool ModuleMemory::HasFailed() { return g_hasFailed; }
