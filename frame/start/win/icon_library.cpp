#include "frame/start/win/icon_library.h"

#include "afxwin.h"
#include "ground/support_files.h"
#include "ground/win/owned_handle.h"
#include "kernel/globals.h"

namespace {

struct LibraryKind {
  using Handle = HINSTANCE;
  static void Free(Handle handle) { ::FreeLibrary(handle); }
};
qvx::OwnedHandle<LibraryKind> g_library;

}  // namespace

void ReplaceIconLibrary(const wchar_t* name) {
  FreeIconLibrary();
  TWCString path;
  if (!qvx::FindFile(name, path)) return;
  g_library.Reset(::LoadLibraryW(path));
  g_hQvxDll = g_library.Get();
}

void FreeIconLibrary() {
  g_library.Reset();
  g_hQvxDll = nullptr;
}
