#include "tests/module/win/module_memory.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <unordered_set>

namespace {

int g_failAt = 0, g_requests = 0;
bool g_hasFailed = false;
std::unordered_set<void*>* g_live = nullptr;
DWORD g_thread = 0;
bool g_changing = false;  // the set frees blocks of its own

void* Allocate(std::size_t bytes) {
  if (++g_requests == g_failAt) {
    g_hasFailed = true;
    throw std::bad_alloc();
  }
  void* block = ::operator new(bytes);
  g_changing = true;
  g_live->insert(block);
  g_changing = false;
  return block;
}

void Free(void* block) {
  if (!g_changing && ::GetCurrentThreadId() == g_thread) {
    g_changing = true;
    g_live->erase(block);
    g_changing = false;
  }
  std::free(block);
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

ModuleMemory::ModuleMemory(const wchar_t* module) {
  g_failAt = g_requests = 0;
  g_live = new std::unordered_set<void*>;
  g_thread = ::GetCurrentThreadId();
  m_frees = Patch(L"libstdc++-6.dll", "free", reinterpret_cast<void*>(&Free));
  m_allocates = Patch(module, "_Znwy", reinterpret_cast<void*>(&Allocate));
  Patch(module, "_Znay", reinterpret_cast<void*>(&Allocate));
}

ModuleMemory::~ModuleMemory() {
  for (int i = 0; i < m_count; ++i) Store(m_slots[i], m_before[i]);
  delete g_live;
  g_live = nullptr;
}

bool ModuleMemory::Patch(const wchar_t* module, const char* name, void* replacement) {
  const HMODULE loaded = ::GetModuleHandleW(module);
  void** slot = loaded ? FindSlot(loaded, name) : nullptr;
  if (!slot) return false;
  m_slots[m_count] = slot;
  m_before[m_count++] = *slot;
  Store(slot, replacement);
  return true;
}

int ModuleMemory::LiveBlocks() { return static_cast<int>(g_live->size()); }

void ModuleMemory::FailAt(int number) {
  g_failAt = number;
  g_requests = 0;
  g_hasFailed = false;
}
bool ModuleMemory::HasFailed() { return g_hasFailed; }
