// Makes allocations of a loaded module fail, by replacing operator new in the module's import
// table. Allocations of the libraries that it calls are not touched. Main thread only.
#pragma once

#include "afxwin.h"

class ModuleMemory {
 public:
  // Patches the module, which has to stay loaded as long as this lives.
  explicit ModuleMemory(const wchar_t* module);
  ~ModuleMemory();
  ModuleMemory(const ModuleMemory&) = delete;
  ModuleMemory& operator=(const ModuleMemory&) = delete;

  // False when the module does not import operator new: nothing can fail then.
  bool IsPatched() const { return m_count > 0; }

  // The allocation of this number from now on throws std::bad_alloc, once; 0: none does.
  static void FailAt(int number);
  static bool HasFailed();  // since FailAt

 private:
  void Patch(const char* name, void* replacement);

  HMODULE m_module;
  void** m_slots[2] = {};
  void* m_before[2] = {};
  int m_count = 0;
};
