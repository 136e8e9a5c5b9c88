// Message dispatch: from the shared procedure through WindowProc and the message maps to the
// handler, or to the procedure that the window had before.
#include "afximpl.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MEASUREITEM()
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (OnWndMsg(message, wParam, lParam, &result)) return result;
  return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) {
  if (m_pfnSuper) return ::CallWindowProc(m_pfnSuper, m_hWnd, nMsg, wParam, lParam);
  WNDPROC* super = GetSuperWndProcAddr();
  if (*super) return ::CallWindowProc(*super, m_hWnd, nMsg, wParam, lParam);
  return ::DefWindowProc(m_hWnd, nMsg, wParam, lParam);
}

LRESULT CWnd::Default() {
  const MSG& message = AfxGetThreadState().lastSent;
  return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* CWnd::GetCurrentMessage() { return &AfxGetThreadState().lastSent; }

// ---- calling a typed handler

namespace {
// The data of a reflected colour query.
struct CtlColor {
  HDC hDC;
  UINT nCtlType;
};

struct Message {
  UINT message;
  WPARAM w;
  LPARAM l;
  UINT LowW() const { return LOWORD(w); }
  UINT HighW() const { return HIWORD(w); }
  UINT LowL() const { return LOWORD(l); }
  UINT HighL() const { return HIWORD(l); }
  CWnd* WndW() const { return CWnd::FromHandle(reinterpret_cast<HWND>(w)); }
  CWnd* WndL() const { return CWnd::FromHandle(reinterpret_cast<HWND>(l)); }
  CDC* ContextW() const { return CDC::FromHandle(reinterpret_cast<HDC>(w)); }
  CMenu* MenuW() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(w)); }
  CPoint PointL() const { return CPoint(l); }
  template <class Pointer>
  Pointer As() const {
    return reinterpret_cast<Pointer>(l);
  }
};

template <class Result, class... Arguments>
Result Call(CWnd* wnd, AFX_PMSG pfn, std::type_identity_t<Arguments>... arguments) {
  return (wnd->*std::bit_cast<Result (CWnd::*)(Arguments...)>(pfn))(arguments...);
}

// The result of a colour query is a brush; without one the default handling follows.
bool CallColour(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const Message& m, LRESULT& result) {
  HBRUSH brush;
  if (entry.nSig == AfxSig_h_D_u) {
    auto* query = m.As<CtlColor*>();
    brush = Call<HBRUSH, CDC*, UINT>(wnd, entry.pfn, CDC::FromHandle(query->hDC), query->nCtlType);
  } else {
    brush = Call<HBRUSH, CDC*, CWnd*, UINT>(wnd, entry.pfn, m.ContextW(), m.WndL(),
                                            m.message - WM_CTLCOLORMSGBOX);
  }
  result = reinterpret_cast<LRESULT>(brush);
  return brush != nullptr;
}

// Handlers whose result is the message's result. False: not handled, the default follows.
bool CallForResult(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const Message& m, LRESULT& result) {
  AFX_PMSG pfn = entry.pfn;
  switch (entry.nSig) {
    case AfxSig_b_D:
      result = Call<BOOL, CDC*>(wnd, pfn, m.ContextW());
      return true;
    case AfxSig_b_b:
      result = Call<BOOL, BOOL>(wnd, pfn, BOOL(m.w));
      return true;
    case AfxSig_b_s:
      result = Call<BOOL, LPCREATESTRUCT>(wnd, pfn, m.As<LPCREATESTRUCT>());
      return true;
    case AfxSig_b_W_u_u:
      result = Call<BOOL, CWnd*, UINT, UINT>(wnd, pfn, m.WndW(), m.LowL(), m.HighL());
      return true;
    case AfxSig_b_u_i_p:  // WM_MOUSEWHEEL: FALSE passes it to the parent
      result = Call<BOOL, UINT, short, CPoint>(wnd, pfn, m.LowW(), short(m.HighW()), m.PointL());
      return result != 0;
    case AfxSig_h_D_W_u:
    case AfxSig_h_D_u:
      return CallColour(wnd, entry, m, result);
    case AfxSig_i_s:
      result = Call<int, LPCREATESTRUCT>(wnd, pfn, m.As<LPCREATESTRUCT>());
      return true;
    case AfxSig_i_W_u_u:
      result = Call<int, CWnd*, UINT, UINT>(wnd, pfn, m.WndW(), m.LowL(), m.HighL());
      return true;
    case AfxSig_l_w_l:
      result = Call<LRESULT, WPARAM, LPARAM>(wnd, pfn, m.w, m.l);
      return true;
    case AfxSig_l_u_u_M:
      result = Call<LRESULT, UINT, UINT, CMenu*>(wnd, pfn, m.LowW(), m.HighW(),
                                                 CMenu::FromHandle(m.As<HMENU>()));
      return true;
    case AfxSig_l_p:
      result = Call<LRESULT, CPoint>(wnd, pfn, m.PointL());
      return true;
    case AfxSig_u_v:
      result = LRESULT(Call<UINT>(wnd, pfn));
      return true;
    default:
      return false;
  }
}

// A scroll bar without a permanent object is identified by its handle; no virtual function of
// CScrollBar may be called on it. Code and position are signed 16-bit numbers.
void CallScroll(CWnd* wnd, AFX_PMSG pfn, const Message& m) {
  Call<void, UINT, UINT, CScrollBar*>(wnd, pfn, UINT(short(m.LowW())), UINT(short(m.HighW())),
                                      static_cast<CScrollBar*>(m.WndL()));
}

// Handlers without a result: the message's result is 0.
void CallForEffect(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const Message& m) {
  AFX_PMSG pfn = entry.pfn;
  switch (entry.nSig) {
    case AfxSig_v_v:
      return Call<void>(wnd, pfn);
    case AfxSig_v_u:
      return Call<void, UINT>(wnd, pfn, UINT(m.w));
    case AfxSig_v_timer:
      return Call<void, UINT_PTR>(wnd, pfn, m.w);
    case AfxSig_v_b:
      return Call<void, BOOL>(wnd, pfn, BOOL(m.w));
    case AfxSig_v_b_u:
      return Call<void, BOOL, UINT>(wnd, pfn, BOOL(m.w), UINT(m.l));
    case AfxSig_v_W:
      return Call<void, CWnd*>(wnd, pfn, m.WndW());
    case AfxSig_v_lW:
      return Call<void, CWnd*>(wnd, pfn, m.WndL());
    case AfxSig_v_W_p:
      return Call<void, CWnd*, CPoint>(wnd, pfn, m.WndW(), m.PointL());
    case AfxSig_v_i_i:
      return Call<void, int, int>(wnd, pfn, short(m.LowL()), short(m.HighL()));
    case AfxSig_v_i_MEASURE:
      return Call<void, int, LPMEASUREITEMSTRUCT>(wnd, pfn, int(m.w), m.As<LPMEASUREITEMSTRUCT>());
    case AfxSig_v_i_DRAW:
      return Call<void, int, LPDRAWITEMSTRUCT>(wnd, pfn, int(m.w), m.As<LPDRAWITEMSTRUCT>());
    case AfxSig_v_u_i_i:
      return Call<void, UINT, int, int>(wnd, pfn, UINT(m.w), int(m.LowL()), int(m.HighL()));
    case AfxSig_v_u_p:
    case AfxSig_v_hit_p:
      return Call<void, UINT, CPoint>(wnd, pfn, UINT(m.w), m.PointL());
    case AfxSig_v_u_u_u:
      return Call<void, UINT, UINT, UINT>(wnd, pfn, UINT(m.w), m.LowL(), m.HighL());
    case AfxSig_v_u_u_h:
      return Call<void, UINT, UINT, HMENU>(wnd, pfn, m.LowW(), m.HighW(), m.As<HMENU>());
    case AfxSig_v_u_u_S:
      return CallScroll(wnd, pfn, m);
    case AfxSig_v_u_u_reflect:
      return Call<void, UINT, UINT>(wnd, pfn, m.LowW(), m.HighW());
    case AfxSig_v_u_W:
      return Call<void, UINT, CWnd*>(wnd, pfn, UINT(m.w), m.WndL());
    case AfxSig_v_u_W_b:
      return Call<void, UINT, CWnd*, BOOL>(wnd, pfn, m.LowW(), m.WndL(), BOOL(m.HighW()));
    case AfxSig_v_u_l:
      return Call<void, UINT, LPARAM>(wnd, pfn, UINT(m.w), m.l);
    case AfxSig_v_u_s:
      return Call<void, UINT, LPCTSTR>(wnd, pfn, UINT(m.w), m.As<LPCTSTR>());
    case AfxSig_v_u_lp:
      return Call<void, UINT, LPRECT>(wnd, pfn, UINT(m.w), m.As<LPRECT>());
    case AfxSig_v_M:
      return Call<void, CMenu*>(wnd, pfn, m.MenuW());
    case AfxSig_v_M_u_b:
      return Call<void, CMenu*, UINT, BOOL>(wnd, pfn, m.MenuW(), m.LowL(), BOOL(m.HighL()));
    case AfxSig_v_b_s:
      return Call<void, BOOL, NCCALCSIZE_PARAMS*>(wnd, pfn, BOOL(m.w), m.As<NCCALCSIZE_PARAMS*>());
    // lParam is the child being activated, wParam the one being deactivated.
    case AfxSig_v_b_W_W:
      return Call<void, BOOL, CWnd*, CWnd*>(wnd, pfn, m.As<HWND>() == wnd->m_hWnd, m.WndL(),
                                            m.WndW());
    case AfxSig_v_WINDOWPOS:
      return Call<void, WINDOWPOS*>(wnd, pfn, m.As<WINDOWPOS*>());
    case AfxSig_v_MINMAXINFO:
      return Call<void, MINMAXINFO*>(wnd, pfn, m.As<MINMAXINFO*>());
    default:
      return;
  }
}

bool HasResult(UINT_PTR sig) { return sig <= AfxSig_u_v; }

// All colour queries are one message in the maps.
UINT MapMessage(UINT message) {
  return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC ? WM_CTLCOLOR : message;
}

// Notifies a frame of its activation, also through one of its pop-ups.
void TellTopLevelOfActivation(CWnd* wnd, UINT state, CWnd* other) {
  if (wnd->GetStyle() & WS_CHILD) return;
  CWnd* top = wnd->GetTopLevelParent();
  if (!top || (other && ::IsWindow(other->m_hWnd) && other->GetTopLevelParent() == top)) return;
  HWND both[2] = {wnd->m_hWnd, AfxHandleOf(other)};
  top->SendMessage(WM_ACTIVATETOPLEVEL, state, reinterpret_cast<LPARAM>(both));
}
}  // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  LRESULT result = 0;
  bool handled = false;
  if (message == WM_COMMAND) {
    handled = OnCommand(wParam, lParam);
    result = handled;
  } else if (message == WM_NOTIFY) {
    handled = lParam && OnNotify(wParam, lParam, &result);
  } else {
    if (message == WM_ACTIVATE)
      TellTopLevelOfActivation(this, UINT(wParam), FromHandle(reinterpret_cast<HWND>(lParam)));
    const AFX_MSGMAP_ENTRY* entry = nullptr;
    for (const AFX_MSGMAP* map = GetMessageMap(); map && !entry;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
      entry = AfxFindMessageEntry(map->lpEntries, MapMessage(message), 0, 0);
    if (!entry) return FALSE;
    const Message m{message, wParam, lParam};
    if (HasResult(entry->nSig)) {
      handled = CallForResult(this, *entry, m, result);
    } else {
      CallForEffect(this, *entry, m);
      handled = true;
    }
  }
  if (handled && pResult) *pResult = result;
  return handled;
}

// ---- commands and notifications

namespace {
// Queries whether a command is enabled without changing a menu row.
class TestCmdUI : public CCmdUI {
 public:
  void Enable(BOOL bOn) override {
    enabled = bOn;
    m_bEnableChanged = TRUE;
  }
  void SetCheck(int) override {}
  void SetRadio(BOOL) override {}
  void SetText(LPCTSTR) override {}
  BOOL enabled = TRUE;
};
}  // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  UINT id = LOWORD(wParam);
  auto control = reinterpret_cast<HWND>(lParam);
  int code = HIWORD(wParam);
  if (!control) {  // menu or accelerator
    if (id == 0) return FALSE;
    TestCmdUI test;
    test.m_nID = id;
    OnCmdMsg(id, int(CN_UPDATE_COMMAND_UI), &test, nullptr);
    if (!test.enabled) return TRUE;  // a disabled command is ignored
    code = CN_COMMAND;
  } else {
    if (AfxGetThreadState().lockoutNotify == m_hWnd) return TRUE;
    if (ReflectLastMsg(control)) return TRUE;
    if (id == 0) return FALSE;
  }
  return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
  auto* header = reinterpret_cast<NMHDR*>(lParam);
  UINT_PTR id = UINT_PTR(::GetDlgCtrlID(header->hwndFrom));
  if (AfxGetThreadState().lockoutNotify == m_hWnd) return TRUE;
  if (ReflectLastMsg(header->hwndFrom, pResult)) return TRUE;
  AFX_NOTIFY notify{pResult, header};
  return OnCmdMsg(UINT(id), int(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

// ---- reflection to the control

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
  CWnd* child = FromHandlePermanent(hWndChild);
  return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
  const MSG message = AfxGetThreadState().lastSent;
  return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  LRESULT dropped = 0;
  if (!pResult) pResult = &dropped;
  switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
      return CWnd::OnWndMsg(AFX_WM_REFLECT + message, wParam, lParam, pResult);
    case WM_COMMAND:
      return OnCmdMsg(0, int(MAKELONG(HIWORD(wParam), AFX_WM_REFLECT + WM_COMMAND)), nullptr,
                      nullptr);
    case WM_NOTIFY: {
      auto* header = reinterpret_cast<NMHDR*>(lParam);
      AFX_NOTIFY notify{pResult, header};
      return OnCmdMsg(0, int(MAKELONG(header->code, AFX_WM_REFLECT + WM_NOTIFY)), &notify, nullptr);
    }
    default:
      break;
  }
  if (MapMessage(message) != WM_CTLCOLOR) return FALSE;
  CtlColor query{reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
  return CWnd::OnWndMsg(AFX_WM_REFLECT + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&query), pResult);
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
  LRESULT brush = 0;
  if (pWnd && ReflectLastMsg(pWnd->m_hWnd, &brush)) return reinterpret_cast<HBRUSH>(brush);
  return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
  if (pScrollBar && ReflectLastMsg(pScrollBar->m_hWnd)) return;
  Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
  if (pScrollBar && ReflectLastMsg(pScrollBar->m_hWnd)) return;
  Default();
}

namespace {
// The permanent menu object with a row of this identifier. A row with a sub-menu has none.
CMenu* FindPopupById(HMENU menu, UINT id) {
  for (int i = 0, count = ::GetMenuItemCount(menu); i < count; ++i) {
    if (HMENU sub = ::GetSubMenu(menu, i)) {
      if (CMenu* found = FindPopupById(sub, id)) return found;
    } else if (::GetMenuItemID(menu, i) == id) {
      return CMenu::FromHandlePermanent(menu);
    }
  }
  return nullptr;
}
}  // namespace

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
  if (lpMeasureItemStruct->CtlType == ODT_MENU) {
    AfxThreadState& state = AfxGetThreadState();
    HMENU root = state.trackingWindow == m_hWnd ? state.trackingMenu : ::GetMenu(m_hWnd);
    if (CMenu* menu = root ? FindPopupById(root, lpMeasureItemStruct->itemID) : nullptr)
      return menu->MeasureItem(lpMeasureItemStruct);
  } else {
    CWnd* child = GetDescendantWindow(m_hWnd, nIDCtl, TRUE);
    if (child && child->SendChildNotifyLastMsg()) return;
  }
  Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
  if (lpDrawItemStruct->CtlType == ODT_MENU) {
    if (CMenu* menu =
            CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
      return menu->DrawItem(lpDrawItemStruct);
  } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
    return;
  }
  Default();
}
