// The message pump and the program object.
#include "afximpl.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

CWinThread::~CWinThread() {
  if (m_hThread) ::CloseHandle(m_hThread);
  AfxThreadState& state = AfxGetThreadState();
  if (state.thread == this) state.thread = nullptr;
}

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName ? lpszAppName : L"") {
  if (lpszAppName) m_pszAppName = m_strAppName;
  m_bAutoDelete = FALSE;
  m_hThread = ::GetCurrentThread();
  m_nThreadID = ::GetCurrentThreadId();
  AfxGetModuleState()->app = this;
  AfxGetThreadState().thread = this;
}

CWinApp::~CWinApp() {
  if (AfxGetModuleState()->app == this) AfxGetModuleState()->app = nullptr;
}

// ---- pump

MSG* AfxCurrentMessage() {
  CWinThread* thread = AfxGetThread();
  return thread ? &thread->m_msgCur : &AfxGetThreadState().current;
}

BOOL AfxPumpMessage() {
  if (CWinThread* thread = AfxGetThread()) return thread->PumpMessage();
  MSG* message = AfxCurrentMessage();
  if (::GetMessage(message, nullptr, 0, 0) <= 0) return FALSE;
  if (!AfxPreTranslateMessage(message)) {
    ::TranslateMessage(message);
    ::DispatchMessage(message);
  }
  return TRUE;
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
  CWinThread* thread = AfxGetThread();
  return thread ? thread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL CWinThread::PumpMessage() {
  if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0) return FALSE;
  if (m_msgCur.message != WM_KICKIDLE && !AfxPreTranslateMessage(&m_msgCur)) {
    ::TranslateMessage(&m_msgCur);
    ::DispatchMessage(&m_msgCur);
  }
  return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
  CWnd* main = AfxGetMainWnd();
  if (CWnd::WalkPreTranslateTree(AfxHandleOf(main), pMsg)) return TRUE;
  // A modeless dialog or floating bar is not a child of the main window, whose
  // accelerators apply to it too.
  if (main && pMsg->hwnd && CWnd::FromHandle(pMsg->hwnd)->GetTopLevelParent() != main)
    return main->PreTranslateMessage(pMsg);
  return FALSE;
}

BOOL AfxIsIdleMessage(const MSG* message, POINT* lastPoint, UINT* lastMessage) {
  constexpr UINT kSysTimer = 0x0118;
  if (message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE) {
    bool same = message->pt.x == lastPoint->x && message->pt.y == lastPoint->y &&
                message->message == *lastMessage;
    *lastPoint = message->pt;
    *lastMessage = message->message;
    return !same;  // Windows repeats WM_MOUSEMOVE
  }
  return message->message != WM_PAINT && message->message != kSysTimer;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
  return AfxIsIdleMessage(pMsg, &m_ptCursorLast, &m_nMsgLast);
}

int CWinThread::Run() {
  BOOL idle = TRUE;
  LONG count = 0;
  for (;;) {
    while (idle && !::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE)) idle = OnIdle(count++);
    do {
      if (!PumpMessage()) return ExitInstance();
      if (IsIdleMessage(&m_msgCur)) {
        idle = TRUE;
        count = 0;
      }
    } while (::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE));
  }
}

// ---- idle time

namespace {
void UpdateCommands(CWnd* wnd) {
  AfxCallWndProc(wnd, wnd->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
  wnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

// Frames other than the main window, floating bars among them, are updated too.
BOOL CALLBACK UpdateFrame(HWND window, LPARAM mainWindow) {
  CWnd* wnd = CWnd::FromHandlePermanent(window);
  if (wnd && window != reinterpret_cast<HWND>(mainWindow) && wnd->IsFrameWnd()) UpdateCommands(wnd);
  return TRUE;
}
}  // namespace

BOOL CWinThread::OnIdle(LONG lCount) {
  if (lCount <= 0) {
    CWnd* main = m_pMainWnd;
    if (main && main->m_hWnd && main->IsWindowVisible()) UpdateCommands(main);
    ::EnumThreadWindows(::GetCurrentThreadId(), UpdateFrame,
                        reinterpret_cast<LPARAM>(AfxHandleOf(main)));
  } else if (AfxGetThreadState().tempLocks == 0) {
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
  }
  return lCount < 0;
}

BOOL CWinApp::OnIdle(LONG lCount) {
  if (lCount <= 1) CWinThread::OnIdle(lCount);
  return lCount < 1;
}

CWnd* CWinThread::GetMainWnd() { return m_pActiveWnd ? m_pActiveWnd : m_pMainWnd; }

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) { return FALSE; }

// ---- exceptions

void AfxReportException(const CException& e) {
  wchar_t text[512] = L"";
  bool silent = e.IsKindOf(RUNTIME_CLASS(CUserException));
  if (!silent && e.GetErrorMessage(text, 512)) AfxMessageBox(text, MB_OK | MB_ICONSTOP);
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
  if (pMsg->message == WM_CREATE) return -1;
  if (pMsg->message == WM_PAINT) {
    // Without this the window would get WM_PAINT for ever.
    ::ValidateRect(pMsg->hwnd, nullptr);
    return 0;
  }
  LRESULT result = 0;
  if (pMsg->message == WM_COMMAND && pMsg->lParam == 0) result = TRUE;  // the command was taken
  AfxReportException(*e);
  return result;
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
  return CWinThread::ProcessWndProcException(e, pMsg);
}

// ---- program

int CWinApp::Run() { return CWinThread::Run(); }

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
  return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
  return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
  AFX_MODULE_STATE* state = AfxGetModuleState();
  state->instance = hInstance;
  if (!state->resources) state->resources = hInstance;
  if (CWinApp* app = state->app) {
    app->m_hInstance = hInstance;
    app->m_lpCmdLine = lpCmdLine;
    app->m_nCmdShow = nCmdShow;
  }
  return TRUE;
}

void AfxWinTerm() { AfxUnhookWindowCreate(); }

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
  CWinApp* app = AfxGetApp();
  if (!app || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow)) return -1;
  int result = -1;
  if (app->InitApplication()) {
    if (app->InitInstance()) {
      result = app->Run();
    } else {
      if (app->m_pMainWnd) app->m_pMainWnd->DestroyWindow();
      result = app->ExitInstance();
    }
  }
  AfxWinTerm();
  return result;
}

void AfxPostQuitMessage(int nExitCode) { ::PostQuitMessage(nExitCode); }

// ---- message box and wait cursor

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
  if (CWinApp* app = AfxGetApp()) return app->DoMessageBox(lpszText, nType, nIDHelp);
  return ::MessageBox(nullptr, lpszText, AfxGetAppName(), nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
  wchar_t text[1024];
  AfxLoadString(nIDPrompt, text, 1024);
  return AfxMessageBox(text, nType, nIDHelp == UINT(-1) ? nIDPrompt : nIDHelp);
}

namespace {
// A box without an icon gets the one that fits its buttons.
UINT WithIcon(UINT type) {
  if (type & MB_ICONMASK) return type;
  UINT buttons = type & MB_TYPEMASK;
  return type |
         (buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? MB_ICONQUESTION : MB_ICONEXCLAMATION);
}
}  // namespace

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
  EnableModeless(FALSE);
  HWND top = nullptr;
  CWnd* owner = CWnd::GetSafeOwner(nullptr, &top);
  HWND window = AfxHandleOf(owner);
  int answer = ::MessageBox(window, lpszPrompt, AfxGetAppName(), WithIcon(nType));
  if (top) ::EnableWindow(top, TRUE);
  EnableModeless(TRUE);
  return answer;
}

void CWinApp::DoWaitCursor(int nCode) {
  m_nWaitCursorCount = std::max(m_nWaitCursorCount + nCode, 0);
  if (m_nWaitCursorCount > 0) {
    HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (nCode > 0 && m_nWaitCursorCount == 1) m_hcurWaitCursorRestore = before;
  } else {
    ::SetCursor(m_hcurWaitCursorRestore);
  }
}

CWaitCursor::CWaitCursor() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(1);
}
CWaitCursor::~CWaitCursor() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(-1);
}
void CWaitCursor::Restore() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(0);
}

void CCmdTarget::BeginWaitCursor() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(1);
}
void CCmdTarget::EndWaitCursor() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(-1);
}
void CCmdTarget::RestoreWaitCursor() {
  if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(0);
}
