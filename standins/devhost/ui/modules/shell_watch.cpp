// Patching import tables; see the header. Functions that a module looks up itself are not recorded.
#include "devhost/ui/modules/shell_watch.h"

#include <htmlhelp.h>
#include <shellapi.h>

#include <cstring>

#include "devhost/core/base/journal.h"

namespace devhost {
namespace {

using HelpFn = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
HelpFn g_help = nullptr;  // the original function, from the first patched table

std::string TextOf(LPCWSTR text) { return text ? Utf8(text) : std::string(); }

HINSTANCE WINAPI RecordShell(HWND window, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters,
                             LPCWSTR folder, INT show) {
  const HINSTANCE result = ::ShellExecuteW(window, verb, file, parameters, folder, show);
  TheJournal().Record("shell", {{"verb", TextOf(verb)},
                                {"file", TextOf(file)},
                                {"result", reinterpret_cast<INT_PTR>(result)}});
  return result;
}

// The text that a help call looks up; empty for other calls.
std::string KeywordOf(UINT command, DWORD_PTR data) {
  if (!data) return {};
  if (command == HH_DISPLAY_INDEX) return TextOf(reinterpret_cast<LPCWSTR>(data));
  if (command != HH_KEYWORD_LOOKUP) return {};
  const auto* link = reinterpret_cast<const HH_AKLINK*>(data);
  return link->cbStruct >= static_cast<int>(sizeof *link) ? TextOf(link->pszKeywords) : "";
}

HWND WINAPI RecordHelp(HWND window, LPCWSTR file, UINT command, DWORD_PTR data) {
  TheJournal().Record(
      "help",
      {{"file", TextOf(file)}, {"command", command}, {"keyword", KeywordOf(command, data)}});
  return g_help ? g_help(window, file, command, data) : nullptr;
}

void Replace(void** slot, void* function) {
  DWORD before = 0;
  if (!::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before)) return;
  *slot = function;
  ::VirtualProtect(slot, sizeof *slot, before, &before);
}

void Take(const char* name, void** slot) {
  if (std::strcmp(name, "ShellExecuteW") == 0) Replace(slot, reinterpret_cast<void*>(&RecordShell));
  if (std::strcmp(name, "HtmlHelpW") == 0 && *slot != reinterpret_cast<void*>(&RecordHelp)) {
    g_help = reinterpret_cast<HelpFn>(*slot);
    Replace(slot, reinterpret_cast<void*>(&RecordHelp));
  }
}

template <typename T>
T* At(BYTE* base, ULONGLONG offset) {
  return reinterpret_cast<T*>(base + offset);
}

}  // namespace

void WatchShellCalls(HMODULE module) {
  BYTE* base = reinterpret_cast<BYTE*>(module);
  if (!base) return;
  const auto* headers = At<IMAGE_NT_HEADERS>(base, At<IMAGE_DOS_HEADER>(base, 0)->e_lfanew);
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  if (directory.Size == 0) return;
  for (auto* from = At<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress); from->Name;
       ++from) {
    if (!from->OriginalFirstThunk) continue;
    auto* names = At<IMAGE_THUNK_DATA>(base, from->OriginalFirstThunk);
    auto* slots = At<IMAGE_THUNK_DATA>(base, from->FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* entry = At<IMAGE_IMPORT_BY_NAME>(base, names->u1.AddressOfData);
      Take(reinterpret_cast<const char*>(entry->Name),
           reinterpret_cast<void**>(&slots->u1.Function));
    }
  }
}

}  // namespace devhost
