// Attaching windows to objects: the hook that attaches a window during its creation, the window
// procedure of all windows of the library, subclassing, window classes.
#include "afximpl.h"

#include <cwchar>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

bool CWnd::IsPlace(HWND hWnd) {
  return hWnd == HWND_BOTTOM || hWnd == HWND_TOPMOST || hWnd == HWND_NOTOPMOST;
}

CWnd::~CWnd() {
  if (m_hWnd && !IsPlace(m_hWnd)) DestroyWindow();
  AfxThreadState& state = AfxGetThreadState();
  if (state.tipWindow == this) state.tipWindow = nullptr;
  if (state.wndInit == this) state.wndInit = nullptr;
}

// ---- maps

CWnd* CWnd::FromHandle(HWND hWnd) { return AfxGetThreadState().windows.FromHandle(hWnd); }

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
  return AfxGetThreadState().windows.LookupPermanent(hWnd);
}

void CWnd::DeleteTempMap() { AfxGetThreadState().windows.DeleteTemporary(); }

BOOL CWnd::Attach(HWND hWndNew) {
  if (!hWndNew || m_hWnd) return FALSE;
  AfxGetThreadState().windows.SetPermanent(m_hWnd = hWndNew, this);
  return TRUE;
}

HWND CWnd::Detach() {
  HWND window = m_hWnd;
  if (window) AfxGetThreadState().windows.Remove(window, this);
  m_hWnd = nullptr;
  return window;
}

// ---- the shared procedure

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
  if (nMsg == WM_QUERYAFXWNDPROC) return 1;
  CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
  if (!wnd || wnd->m_hWnd != hWnd) return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
  return AfxCallWndProc(wnd, hWnd, nMsg, wParam, lParam);
}

namespace {
// The result of a message whose handler threw: creation fails, painting counts as done.
LRESULT ResultAfterException(const MSG& message) {
  if (message.message == WM_CREATE) return -1;
  if (message.message == WM_PAINT) ::ValidateRect(message.hwnd, nullptr);
  return 0;
}

class LastMessage {
 public:
  explicit LastMessage(const MSG& message) : m_old(AfxGetThreadState().lastSent) {
    AfxGetThreadState().lastSent = message;
  }
  ~LastMessage() { AfxGetThreadState().lastSent = m_old; }

 private:
  MSG m_old;
};
}  // namespace

// Catches what the library throws and nothing else. Any other exception leaves through frames that
// belong to Windows: handlers have to keep it to themselves.
LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
  const MSG message{hWnd, nMsg, wParam, lParam, 0, {}};
  LastMessage last(message);
  try {
    return pWnd->WindowProc(nMsg, wParam, lParam);
  } catch (CException* e) {
    CWinThread* thread = AfxGetThread();
    LRESULT result =
        thread ? thread->ProcessWndProcException(e, &message) : ResultAfterException(message);
    e->Delete();
    return result;
  }
}

// ---- creation

namespace {
void AttachAndSubclass(CWnd* wnd, HWND window) {
  wnd->Attach(window);
  wnd->PreSubclassWindow();
  WNDPROC old = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
  if (old != AfxWndProc) *wnd->GetSuperWndProcAddr() = old;
}

// The input method creates a window of its own during the first creation.
bool IsInputMethodWindow(HWND window) {
  wchar_t name[8] = L"";
  return ::GetClassName(window, name, 8) && _wcsicmp(name, L"ime") == 0;
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
  AfxThreadState& state = AfxGetThreadState();
  auto window = reinterpret_cast<HWND>(wParam);
  if (code == HCBT_CREATEWND && state.wndInit && !IsInputMethodWindow(window)) {
    CWnd* wnd = std::exchange(state.wndInit, nullptr);
    try {
      AttachAndSubclass(wnd, window);
    } catch (CException* e) {
      e->Delete();
      return 1;  // no window
    }
  }
  return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}
}  // namespace

void AfxHookWindowCreate(CWnd* pWnd) {
  AfxThreadState& state = AfxGetThreadState();
  if (!state.creationHook)
    state.creationHook = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
  state.wndInit = pWnd;
}

BOOL AfxUnhookWindowCreate() {
  AfxThreadState& state = AfxGetThreadState();
  if (state.creationHook) ::UnhookWindowsHookEx(std::exchange(state.creationHook, nullptr));
  return std::exchange(state.wndInit, nullptr) == nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
  // As published: a class of the library without a background brush; the window erases itself.
  if (!cs.lpszClass)
    cs.lpszClass =
        AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
  return TRUE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam) {
  CREATESTRUCT cs{
      lpParam, AfxGetInstanceHandle(), nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
      x,       LONG(dwStyle),          lpszWindowName, lpszClassName, dwExStyle};
  if (!PreCreateWindow(cs)) {
    PostNcDestroy();
    return FALSE;
  }
  AfxHookWindowCreate(this);
  HWND window =
      ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, DWORD(cs.style), cs.x, cs.y, cs.cx,
                       cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
  if (!AfxUnhookWindowCreate()) PostNcDestroy();  // no window was created
  return window != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
  return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                  rect.right - rect.left, rect.bottom - rect.top, AfxHandleOf(pParentWnd),
                  reinterpret_cast<HMENU>(UINT_PTR(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, void* pContext) {
  return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                  pContext);
}

BOOL CWnd::DestroyWindow() {
  if (!m_hWnd) return FALSE;
  // A permanent object is detached while its window is destroyed, and may be deleted by then.
  bool lasting = FromHandlePermanent(m_hWnd) != nullptr;
  BOOL destroyed = ::DestroyWindow(m_hWnd);
  if (!lasting) Detach();
  return destroyed;
}

// The last message of a window. Restores the procedure, detaches the handle and, for the main
// window, ends the program.
void CWnd::OnNcDestroy() {
  CWinThread* thread = AfxGetThread();
  if (thread) {
    if (thread->m_pMainWnd == this) {
      AfxPostQuitMessage(0);
      thread->m_pMainWnd = nullptr;
    }
    if (thread->m_pActiveWnd == this) thread->m_pActiveWnd = nullptr;
  }
  AfxThreadState& state = AfxGetThreadState();
  if (state.tipWindow == this) CancelToolTips();

  LONG_PTR before = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
  Default();
  if (::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == before && *GetSuperWndProcAddr()) {
    ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*GetSuperWndProcAddr()));
    *GetSuperWndProcAddr() = nullptr;
  }
  Detach();
  PostNcDestroy();
}

// ---- subclassing

WNDPROC* CWnd::GetSuperWndProcAddr() { return &m_pfnSuper; }

BOOL CWnd::SubclassWindow(HWND hWnd) {
  if (m_hWnd || !::IsWindow(hWnd) || FromHandlePermanent(hWnd)) return FALSE;
  AttachAndSubclass(this, hWnd);
  return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
  HWND control = ::GetDlgItem(pParent->m_hWnd, int(nID));
  return control && SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow() {
  WNDPROC* super = GetSuperWndProcAddr();
  if (*super) ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
  *super = nullptr;
  return Detach();
}

// ---- classes

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
  WNDCLASS present;
  if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &present)) return TRUE;
  return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
  wchar_t(&name)[96] = AfxGetThreadState().className;
  HINSTANCE instance = AfxGetInstanceHandle();
  std::swprintf(name, 96, L"Afx:%llx:%x:%llx:%llx:%llx",
                reinterpret_cast<unsigned long long>(instance), nClassStyle,
                reinterpret_cast<unsigned long long>(hCursor),
                reinterpret_cast<unsigned long long>(hbrBackground),
                reinterpret_cast<unsigned long long>(hIcon));
  WNDCLASS windowClass{nClassStyle, ::DefWindowProc, 0,       0,   instance, hIcon,
                       hCursor,     hbrBackground,   nullptr, name};
  if (!AfxRegisterClass(&windowClass)) AfxThrowResourceException();
  return name;
}
