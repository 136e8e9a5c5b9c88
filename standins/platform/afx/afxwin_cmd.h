// CCmdTarget: base of the classes that handle commands. The tables of a message map, the record of
// a command search, CCmdUI for the state of one menu row or button. Included by afxwin.h.
#pragma once

// Codes of a command search in addition to the notification codes of controls.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))
// Added to a message that a parent reflects to the control that sent it.
#define AFX_WM_REFLECT 0xBC00

typedef void (CCmdTarget::*AFX_PMSG)();

struct AFX_MSGMAP_ENTRY {
  // Window message, WM_COMMAND or WM_NOTIFY; plus AFX_WM_REFLECT if reflected.
  UINT nMessage;
  UINT nCode;  // notification or command code
  UINT nID;    // first and last identifier, 0 for window messages
  UINT nLastID;
  UINT_PTR nSig;  // an AfxSig; AfxSig_end closes the table
  AFX_PMSG pfn;
};

struct AFX_MSGMAP {
  const AFX_MSGMAP* (*pfnGetBaseMap)();  // returns null in the root's map
  const AFX_MSGMAP_ENTRY* lpEntries;
};

// clang-format off
#define DECLARE_MESSAGE_MAP()                   \
 protected:                                     \
  static const AFX_MSGMAP* GetThisMessageMap(); \
  const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                \
  const AFX_MSGMAP* theClass::GetMessageMap() const { return theClass::GetThisMessageMap(); } \
  const AFX_MSGMAP* theClass::GetThisMessageMap() {                                           \
    using ThisClass [[maybe_unused]] = theClass;                                              \
    using TheBaseClass = baseClass;                                                           \
    static const AFX_MSGMAP_ENTRY _messageEntries[] = {
#define END_MESSAGE_MAP()                                                                     \
    {0, 0, 0, 0, AfxSig_end, nullptr}};                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, _messageEntries};  \
    return &messageMap;                                                                        \
  }
// clang-format on

// Receives the handler, which is then not called, if the caller only searches for it.
struct AFX_CMDHANDLERINFO {
  CCmdTarget* pTarget;
  AFX_PMSG pmf;
};

// The data of WM_NOTIFY in a command search.
struct AFX_NOTIFY {
  LRESULT* pResult;
  NMHDR* pNMHDR;
};

class CCmdTarget : public CObject {
  DECLARE_DYNAMIC(CCmdTarget)
 public:
  CCmdTarget() = default;

  // Searches this object's message map and calls the handler found. The low word of nCode is the
  // code, the high word the message (0 means WM_COMMAND).
  virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

  // Calls nest: the wait cursor is shown until the last BeginWaitCursor is ended.
  void BeginWaitCursor();
  void EndWaitCursor();
  void RestoreWaitCursor();

 protected:
  static const AFX_MSGMAP* GetThisMessageMap();
  virtual const AFX_MSGMAP* GetMessageMap() const;
};

// The state of one menu row or control during an update. The base class serves menus (m_pMenu) and
// controls (m_pOther); bars with parts of their own derive from it.
class CCmdUI {
 public:
  CCmdUI();
  virtual ~CCmdUI() = default;

  UINT m_nID = 0;
  UINT m_nIndex = 0;
  CMenu* m_pMenu = nullptr;
  CMenu* m_pSubMenu = nullptr;
  CWnd* m_pOther = nullptr;
  BOOL m_bEnableChanged = FALSE;
  BOOL m_bContinueRouting = FALSE;
  UINT m_nIndexMax = 0;
  CMenu* m_pParentMenu = nullptr;

  virtual void Enable(BOOL bOn = TRUE);
  virtual void SetCheck(int nCheck = 1);  // 0 off, 1 on, 2 undetermined
  virtual void SetRadio(BOOL bOn = TRUE);
  virtual void SetText(LPCTSTR lpszText);
  void ContinueRouting() { m_bContinueRouting = TRUE; }
  // Updates the state by the target's handler; a command without any handler is
  // disabled if bDisableIfNoHndler.
  BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
