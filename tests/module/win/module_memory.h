// Makes allocations of a loaded module fail and counts those that are not freed, by replacing
// operator new in the module's import table and free in the one of the C++ library, through which
// every operator delete of the process frees. Allocations of the libraries that the module calls
// are not touched. Main thread only.
#pragma once

#include "afxwin.h"

class ModuleMemory {
 public:
  // Patches the module, which has to stay loaded as long as this lives.
  explicit ModuleMemory(const wchar_t* module);
  ~ModuleMemory();
  ModuleMemory(const ModuleMemory&) = delete;
  ModuleMemory& operator=(const ModuleMemory&) = delete;

  // False when a table has no such function: nothing can fail or be counted then.
  bool IsPatched() const { return m_allocates && m_frees; }

  // Blocks that the module has allocated since the patch and that are not freed.
  static int LiveBlocks();

  // The allocation of this number from now on throws std::bad_alloc, once; 0: none does.
  static void FailAt(int number);
  static bool HasFailed();  // since FailAt

 private:
  bool Patch(const wchar_t* module, const char* name, void* replacement);

  void** m_slots[3] = {};
  void* m_before[3] = {};
  int m_count = 0;
  bool m_allocates = false;
  bool m_frees = false;
};
