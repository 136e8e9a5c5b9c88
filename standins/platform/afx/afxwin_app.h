// CWinThread and CWinApp: the message pump and the program. Afx functions for the application, the
// instance and resource handles, the message box, window classes, and the parts that a module (an
// extension DLL) uses. Included by afxwin.h.
//
// The process has one CWinApp, created by the program; modules get it by AfxGetApp.
#pragma once

class CWinThread : public CCmdTarget {
  DECLARE_DYNAMIC(CWinThread)
 public:
  CWinThread() = default;
  ~CWinThread() override;  // closes m_hThread; the thread must have ended

  BOOL m_bAutoDelete = TRUE;  // CreateThread's thread deletes this object when it ends
  CWnd* m_pMainWnd = nullptr;
  CWnd* m_pActiveWnd = nullptr;
  HANDLE m_hThread = nullptr;
  DWORD m_nThreadID = 0;
  MSG m_msgCur{};

  // The thread runs InitInstance, then Run, or ExitInstance when that gave FALSE. FALSE: no thread
  // was created, or this object has one already.
  BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                    LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
  int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
  BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
  DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
  DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
  virtual void Delete();  // what m_bAutoDelete asks for

  virtual BOOL InitInstance() { return FALSE; }
  virtual int Run();
  virtual BOOL PreTranslateMessage(MSG* pMsg);
  // Processes one message of the queue; FALSE at WM_QUIT.
  virtual BOOL PumpMessage();
  // lCount counts the calls since the last message; FALSE: no more idle work.
  virtual BOOL OnIdle(LONG lCount);
  virtual BOOL IsIdleMessage(MSG* pMsg);
  virtual int ExitInstance() { return int(m_msgCur.wParam); }
  // Handles an exception that a message handler threw; returns the message's result.
  virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
  virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
  virtual CWnd* GetMainWnd();

 protected:
  POINT m_ptCursorLast{};
  UINT m_nMsgLast = 0;
};

class CWinApp : public CWinThread {
  DECLARE_DYNAMIC(CWinApp)
 public:
  explicit CWinApp(LPCTSTR lpszAppName = nullptr);
  ~CWinApp() override;

  HINSTANCE m_hInstance = nullptr;
  LPTSTR m_lpCmdLine = nullptr;
  int m_nCmdShow = SW_SHOWNORMAL;
  CString m_strAppName;
  LPCTSTR m_pszAppName = nullptr;  // title of message boxes

  BOOL InitInstance() override { return TRUE; }
  int Run() override;
  BOOL OnIdle(LONG lCount) override;
  LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
  virtual BOOL InitApplication() { return TRUE; }
  virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
  virtual void DoWaitCursor(int nCode);  // 1 begin, -1 end, 0 restore
  // Disables or enables the main window around a modal dialog; overridden by a
  // host with its own rules.
  virtual void EnableModeless(BOOL) {}

  HICON LoadIcon(LPCTSTR lpszResourceName) const;
  HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
  HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }
  HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
  HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
  HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursor(nullptr, lpszCursorName);
  }

 private:
  int m_nWaitCursorCount = 0;
  HCURSOR m_hcurWaitCursorRestore = nullptr;
};

class CWaitCursor {
 public:
  CWaitCursor();
  ~CWaitCursor();
  void Restore();
  CWaitCursor(const CWaitCursor&) = delete;
  CWaitCursor& operator=(const CWaitCursor&) = delete;
};

// --- the program
CWinThread* AfxGetThread();
CWinApp* AfxGetApp();
CWnd* AfxGetMainWnd();
LPCTSTR AfxGetAppName();
HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE hInstResource);
// The module that contains the resource: the current one, else the first extension module that has
// it, else the current one again.
HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
// Call before the program object is used. hPrevInstance is always null.
BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
void AfxWinTerm();
// Runs the program: AfxWinInit, InitInstance, Run or ExitInstance, AfxWinTerm.
int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
void AfxPostQuitMessage(int nExitCode);
BOOL AfxPumpMessage();
BOOL AfxPreTranslateMessage(MSG* pMsg);

int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = UINT(-1));

// The name of a class with these properties, registered if necessary. Static storage, overwritten
// by a later call. Throws CResourceException.
LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                            HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

// Temporary objects are kept while the count is not 0.
void AfxLockTempMaps();
BOOL AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
// TRUE if hWndChild is hWndParent or has it among its parents and owners.
BOOL AfxIsDescendant(HWND hWndParent, HWND hWndChild);

// --- modules
struct AFX_EXTENSION_MODULE {
  BOOL bInitialized;
  HMODULE hModule;
  HMODULE hResource;
};

class CDynLinkLibrary : public CCmdTarget {
  DECLARE_DYNAMIC(CDynLinkLibrary)
 public:
  // AfxFindResourceHandle searches the module from construction to destruction.
  explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
  ~CDynLinkLibrary() override;
  HMODULE m_hModule;
  HMODULE m_hResource;
};

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod);
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state,
                            BOOL bAll = FALSE);  // deletes its CDynLinkLibrary

// Has no effect, since all modules share one state; offered for sources that name it.
class AFX_MODULE_STATE;
AFX_MODULE_STATE* AfxGetModuleState();
inline AFX_MODULE_STATE* AfxGetStaticModuleState() { return AfxGetModuleState(); }
#define AFX_MANAGE_STATE(p) [[maybe_unused]] AFX_MODULE_STATE* const afxManagedState = (p)
