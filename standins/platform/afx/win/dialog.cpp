// Dialogs: creation from a template, the modal loop, which applies the thread's message
// filters, the standard buttons.
#include "afximpl.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, OnOK)
ON_COMMAND(IDCANCEL, OnCancel)
ON_CONTROL(BN_CLICKED, IDOK, OnOK)
ON_CONTROL(BN_CLICKED, IDCANCEL, OnCancel)
ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
ON_MESSAGE(WM_SETFONT, HandleSetFont)
END_MESSAGE_MAP()

CDialog::~CDialog() {
  if (m_hWnd) DestroyWindow();
}

// ---- modal loop of any window

namespace {
void ShowAtIdle(CWnd* wnd, bool& pending) {
  if (!pending) return;
  wnd->ShowWindow(SW_SHOWNORMAL);
  wnd->UpdateWindow();
  pending = false;
}

// Called each time the queue is empty. False: no more idle work.
bool ModalIdle(CWnd* wnd, DWORD flags, HWND parent, LONG count) {
  if (!(flags & MLF_NOIDLEMSG) && parent && count == 0)
    ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(wnd->m_hWnd));
  return !(flags & MLF_NOKICKIDLE) && wnd->SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, count);
}
// Blinks the caret; not in the published headers.
constexpr UINT kSysTimer = 0x0118;
}  // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
  bool idle = true;
  LONG idleCount = 0;
  bool showPending = (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
  HWND parent = ::GetParent(m_hWnd);
  m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
  POINT lastPoint{};
  UINT lastMessage = 0;
  MSG* message = AfxCurrentMessage();
  while (ContinueModal()) {
    while (idle && !::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE)) {
      ShowAtIdle(this, showPending);
      idle = ModalIdle(this, dwFlags, parent, idleCount++);
    }
    do {
      if (!AfxPumpMessage()) {
        AfxPostQuitMessage(int(message->wParam));  // for the outer loop
        m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
        return -1;
      }
      if (message->message == kSysTimer || message->message == WM_SYSKEYDOWN)
        ShowAtIdle(this, showPending);
      if (!ContinueModal()) break;
      if (AfxIsIdleMessage(message, &lastPoint, &lastMessage)) {
        idle = true;
        idleCount = 0;
      }
    } while (::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE));
  }
  m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
  return m_nModalResult;
}

BOOL CWnd::ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }

void CWnd::EndModalLoop(int nResult) {
  m_nModalResult = nResult;
  if (!(m_nFlags & WF_CONTINUEMODAL)) return;
  m_nFlags &= ~WF_CONTINUEMODAL;
  PostMessage(WM_NULL);  // ends GetMessage
}

// ---- creation

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
  if (message != WM_INITDIALOG) return 0;
  auto* dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
  return dialog ? dialog->OnInitDialog() : 1;
}

namespace {
LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE* module) {
  *module = AfxFindResourceHandle(name, RT_DIALOG);
  HRSRC resource = ::FindResource(*module, name, RT_DIALOG);
  HGLOBAL loaded = resource ? ::LoadResource(*module, resource) : nullptr;
  return loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}
}  // namespace

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                HINSTANCE hInst) {
  m_nModalResult = -1;
  m_nFlags |= WF_CONTINUEMODAL;
  m_lpDialogTemplate = lpDialogTemplate;
  AfxHookWindowCreate(this);
  HWND window =
      ::CreateDialogIndirect(hInst, lpDialogTemplate, AfxHandleOf(pParentWnd), AfxDlgProc);
  if (!AfxUnhookWindowCreate()) PostNcDestroy();
  // EndDialog was called during creation: the dialog ends without being shown.
  if (window && !(m_nFlags & WF_CONTINUEMODAL)) {
    ::DestroyWindow(window);
    window = nullptr;
  }
  return window != nullptr;
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
  m_lpszTemplateName = lpszTemplateName;
  if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0)
    m_nIDHelp = LOWORD(reinterpret_cast<ULONG_PTR>(lpszTemplateName));
  HINSTANCE module = nullptr;
  LPCDLGTEMPLATE found = FindTemplate(lpszTemplateName, &module);
  if (!found) return FALSE;
  BOOL made = CreateDlgIndirect(found, pParentWnd ? pParentWnd : AfxGetMainWnd(), module);
  m_nFlags &= ~WF_CONTINUEMODAL;
  return made;
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                             void* lpDialogInit) {
  m_lpDialogInit = lpDialogInit;
  BOOL made = CreateDlgIndirect(lpDialogTemplate, pParentWnd ? pParentWnd : AfxGetMainWnd(),
                                AfxGetInstanceHandle());
  m_nFlags &= ~WF_CONTINUEMODAL;
  return made;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                void* lpDialogInit) {
  if (pParentWnd) m_pParentWnd = pParentWnd;
  m_lpDialogTemplate = lpDialogTemplate;
  m_lpDialogInit = lpDialogInit;
  return TRUE;
}

// ---- modal

HWND CDialog::PreModal() {
  AfxUnhookWindowCreate();
  if (CWinApp* app = AfxGetApp()) app->EnableModeless(FALSE);
  CWnd* owner = GetSafeOwner(m_pParentWnd, &m_hWndTop);
  return AfxHandleOf(owner);
}

void CDialog::PostModal() {
  AfxUnhookWindowCreate();
  Detach();
  if (::IsWindow(m_hWndTop)) ::EnableWindow(m_hWndTop, TRUE);
  m_hWndTop = nullptr;
  if (CWinApp* app = AfxGetApp()) app->EnableModeless(TRUE);
}

INT_PTR CDialog::DoModal() {
  HINSTANCE module = AfxGetResourceHandle();
  LPCDLGTEMPLATE tmpl = m_lpDialogTemplate;
  if (m_lpszTemplateName) tmpl = FindTemplate(m_lpszTemplateName, &module);
  if (!tmpl) return -1;

  HWND owner = PreModal();
  bool disabled = owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner);
  if (disabled) ::EnableWindow(owner, FALSE);
  try {
    if (CreateDlgIndirect(tmpl, FromHandle(owner), module)) {
      if (m_nFlags & WF_CONTINUEMODAL)
        RunModalLoop(MLF_SHOWONIDLE | (GetStyle() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0));
      if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
  } catch (CException* e) {
    AfxReportException(*e);
    e->Delete();
    m_nModalResult = -1;
  }
  // Enables the owner before the dialog is destroyed, or Windows would activate another program.
  if (disabled) ::EnableWindow(owner, TRUE);
  if (owner && ::GetActiveWindow() == m_hWnd) ::SetActiveWindow(owner);
  DestroyWindow();
  PostModal();
  return m_nModalResult;
}

void CDialog::EndDialog(int nResult) {
  if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) EndModalLoop(nResult);
  ::EndDialog(m_hWnd, nResult);
}

// ---- messages

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
  PreInitDialog();
  CRect before;
  GetWindowRect(before);
  bool centre = CheckAutoCenter();
  LRESULT result = Default();
  // Centred unless OnInitDialog moved or resized it.
  CRect after;
  if (::IsWindow(m_hWnd)) GetWindowRect(after);
  if (centre && after == before && !(GetStyle() & (WS_VISIBLE | WS_CHILD))) CenterWindow();
  return result;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
  OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
  return Default();
}

// A template at the default place is centred; one with a style for its place is not.
BOOL CDialog::CheckAutoCenter() {
  if (!m_lpDialogTemplate) return TRUE;
  // The newer form of a template, identified by its first four bytes.
  struct Extended {
    WORD version, signature;
    DWORD helpId, exStyle, style;
    WORD items;
    short x, y;
  };
  DWORD style = m_lpDialogTemplate->style;
  int x = m_lpDialogTemplate->x, y = m_lpDialogTemplate->y;
  auto* extended = reinterpret_cast<const Extended*>(m_lpDialogTemplate);
  if (extended->signature == 0xFFFF) style = extended->style, x = extended->x, y = extended->y;
  return !(style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) && x == 0 && y == 0;
}

BOOL CDialog::OnInitDialog() {
  if (!UpdateData(FALSE)) {
    EndDialog(-1);
    return FALSE;
  }
  return TRUE;
}

void CDialog::OnOK() {
  if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

// Dialog keys: Tab, arrows, Enter, Esc and mnemonics. A multi-line edit that handles Esc
// itself closes its dialog.
BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
  return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

// Commands without a handler here go to the owner and the program, except identifiers of
// controls and of system commands.
BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  bool command = nCode == CN_COMMAND || UINT(nCode) == CN_UPDATE_COMMAND_UI;
  if (!command || !(nID & 0x8000) || nID >= 0xF000) return FALSE;
  CWnd* owner = GetParent();
  if (owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  CWinThread* thread = AfxGetThread();
  return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
