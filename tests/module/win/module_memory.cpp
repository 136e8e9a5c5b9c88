#include "tests/module/win/module_memory.h"

#include <cstdlib>
#include <new>
#include <unordered_set>

#include "tests/module/win/import_slot.h"

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
  for (int i = 0; i < m_count; ++i) StoreSlot(m_slots[i], m_before[i]);
  delete g_live;
  g_live = nullptr;
}

bool ModuleMemory::Patch(const wchar_t* module, const char* name, void* replacement) {
  const HMODULE loaded = ::GetModuleHandleW(module);
  void** slot = loaded ? ImportSlot(loaded, name) : nullptr;
  if (!slot) return false;
  m_slots[m_count] = slot;
  m_before[m_count++] = *slot;
  StoreSlot(slot, replacement);
  return true;
}

int ModuleMemory::LiveBlocks() { return static_cast<int>(g_live->size()); }

void ModuleMemory::FailAt(int number) {
  g_failAt = number;
  g_requests = 0;
  g_hasFailed = false;
}
bool ModuleMemory::HasFailed() { return g_hasFailed; }
