// The import table of a loaded module: a test replaces one function that the module imports.
#pragma once

#include <windows.h>

#include <cstring>

// The slot of the import table that holds a function of this name; null without one.
inline void** ImportSlot(HMODULE module, const char* name) {
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

inline void StoreSlot(void** slot, void* value) {
  DWORD before = 0;
  ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
  *slot = value;
  ::VirtualProtect(slot, sizeof *slot, before, &before);
}
