// The state of the Afx functions: one for the process (application, resources, modules), one for
// each thread (handle maps, current message).
#include "afximpl.h"

#include <utility>

namespace {
AFX_MODULE_STATE& ModuleState() {
  // Never freed: outlives the static objects of all modules.
  static auto* state = new AFX_MODULE_STATE;
  return *state;
}

CGdiObject* NewObjectOfKind(HGDIOBJ handle) {
  switch (::GetObjectType(handle)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
      return new CPen;
    case OBJ_BRUSH:
      return new CBrush;
    case OBJ_FONT:
      return new CFont;
    case OBJ_BITMAP:
      return new CBitmap;
    case OBJ_REGION:
      return new CRgn;
    default:
      return new CGdiObject;
  }
}

CWnd* MakeWindow(void* handle) {
  auto* wnd = new CWnd;
  wnd->m_hWnd = static_cast<HWND>(handle);
  return wnd;
}

CMenu* MakeMenu(void* handle) {
  auto* menu = new CMenu;
  menu->m_hMenu = static_cast<HMENU>(handle);
  return menu;
}

CDC* MakeContext(void* handle) {
  auto* dc = new CDC;
  dc->m_hDC = dc->m_hAttribDC = static_cast<HDC>(handle);
  return dc;
}

CGdiObject* MakeObject(void* handle) {
  CGdiObject* object = NewObjectOfKind(handle);
  object->m_hObject = handle;
  return object;
}
}  // namespace

AfxThreadState::AfxThreadState()
    : windows(MakeWindow, [](CWnd* wnd) { wnd->m_hWnd = nullptr; }),
      menus(MakeMenu, [](CMenu* menu) { menu->m_hMenu = nullptr; }),
      contexts(MakeContext, [](CDC* dc) { dc->m_hDC = dc->m_hAttribDC = nullptr; }),
      objects(MakeObject, [](CGdiObject* object) { object->m_hObject = nullptr; }) {}

namespace {
thread_local AfxThreadState* s_state = nullptr;
}

AfxThreadState& AfxGetThreadState() {
  if (!s_state) s_state = new AfxThreadState;
  return *s_state;
}

void AfxFreeThreadState() { delete std::exchange(s_state, nullptr); }

AFX_MODULE_STATE* AfxGetModuleState() { return &ModuleState(); }

void AfxLockTempMaps() { ++AfxGetThreadState().tempLocks; }

BOOL AfxUnlockTempMaps(BOOL bDeleteTemps) {
  AfxThreadState& state = AfxGetThreadState();
  if (state.tempLocks > 0 && --state.tempLocks == 0 && bDeleteTemps) {
    state.contexts.DeleteTemporary();
    state.objects.DeleteTemporary();
    state.menus.DeleteTemporary();
    state.windows.DeleteTemporary();
  }
  return state.tempLocks != 0;
}

// ---- application and handles

CWinApp* AfxGetApp() { return ModuleState().app; }

CWinThread* AfxGetThread() {
  CWinThread* thread = AfxGetThreadState().thread;
  return thread ? thread : AfxGetApp();
}

CWnd* AfxGetMainWnd() {
  CWinThread* thread = AfxGetThread();
  return thread ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AfxGetAppName() {
  CWinApp* app = AfxGetApp();
  return app && app->m_pszAppName ? app->m_pszAppName : L"";
}

HINSTANCE AfxGetInstanceHandle() {
  AFX_MODULE_STATE& state = ModuleState();
  if (!state.instance) state.instance = ::GetModuleHandle(nullptr);
  return state.instance;
}

HINSTANCE AfxGetResourceHandle() {
  AFX_MODULE_STATE& state = ModuleState();
  return state.resources ? state.resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE hInstResource) { ModuleState().resources = hInstResource; }

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
  HINSTANCE current = AfxGetResourceHandle();
  if (::FindResource(current, lpszName, lpszType)) return current;
  for (CDynLinkLibrary* library : ModuleState().libraries)
    if (library->m_hResource && ::FindResource(library->m_hResource, lpszName, lpszType))
      return library->m_hResource;
  return current;
}

int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
  if (nMaxBuf == 0) return 0;
  lpszBuf[0] = 0;
  // Strings are stored in blocks of sixteen; the block number is the resource's name.
  HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE((nIDS >> 4) + 1), RT_STRING);
  if (const int length = ::LoadString(module, nIDS, lpszBuf, int(nMaxBuf))) return length;
  if (nIDS == AFX_IDP_PARSE_REAL) ::lstrcpyn(lpszBuf, _T("请输入一个数。"), int(nMaxBuf));
  return ::lstrlen(lpszBuf);
}

// ---- extension modules

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule), m_hResource(state.hResource) {
  auto& libraries = ModuleState().libraries;
  libraries.insert(libraries.begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary() { std::erase(ModuleState().libraries, this); }

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod) {
  // A DLL may have several entry points that call this.
  if (state.bInitialized) return TRUE;
  state = {TRUE, hMod, hMod};
  return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
  if (!state.bInitialized) return;
  auto libraries = ModuleState().libraries;
  for (CDynLinkLibrary* library : libraries)
    if (library->m_hModule == state.hModule) delete library;
  state = {};
}
