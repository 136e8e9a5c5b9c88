// Message map entries: for every message that a map can contain, the signature of its handler. Each
// macro checks the handler's type at compile time and stores it with the tag by which
// CWnd::OnWndMsg or CCmdTarget::OnCmdMsg calls it. Included by afxwin.h, after CCmdTarget.
#pragma once

#include <bit>

// Types of a handler: result, then arguments. v void, b BOOL, i int, u UINT, l LRESULT, h HBRUSH, D
// CDC*, W CWnd*, M CMenu*, p CPoint, s pointer to a structure or text.
enum AfxSig : UINT_PTR {
  AfxSig_end = 0,
  AfxSig_b_D,
  AfxSig_b_b,
  AfxSig_b_s,
  AfxSig_b_W_u_u,
  AfxSig_b_u_i_p,
  AfxSig_h_D_W_u,
  AfxSig_h_D_u,
  AfxSig_i_s,
  AfxSig_i_W_u_u,
  AfxSig_l_w_l,
  AfxSig_l_u_u_M,
  AfxSig_l_p,
  AfxSig_u_v,
  AfxSig_v_v,
  AfxSig_v_u,
  AfxSig_v_timer,
  AfxSig_v_b,
  AfxSig_v_b_u,
  AfxSig_v_W,
  AfxSig_v_lW,
  AfxSig_v_W_p,
  AfxSig_v_i_i,
  AfxSig_v_i_MEASURE,
  AfxSig_v_i_DRAW,
  AfxSig_v_u_i_i,
  AfxSig_v_u_p,
  AfxSig_v_u_u_u,
  AfxSig_v_u_u_h,
  AfxSig_v_u_u_S,
  AfxSig_v_u_u_reflect,
  AfxSig_v_u_W,
  AfxSig_v_u_W_b,
  AfxSig_v_u_l,
  AfxSig_v_u_s,
  AfxSig_v_M,
  AfxSig_v_M_u_b,
  AfxSig_v_b_s,
  AfxSig_v_b_W_W,
  AfxSig_v_WINDOWPOS,
  AfxSig_v_MINMAXINFO,
  AfxSig_v_u_lp,
  AfxSig_v_hit_p,
  // Commands and notifications.
  AfxSigCmd_v,
  AfxSigCmd_b,
  AfxSigCmd_RANGE,
  AfxSigCmd_EX,
  AfxSigCmdUI,
  AfxSigCmdUI_RANGE,
  AfxSigNotify_v,
  AfxSigNotify_b,
  AfxSigNotify_EX,
};

// All handler pointers are stored as one type. The cast keeps the bits of a pointer to member, and
// it is called only after the cast back to the type of its tag.
template <class Handler>
AFX_PMSG AfxPackHandler(Handler handler) {
  static_assert(sizeof(Handler) == sizeof(AFX_PMSG));
  return std::bit_cast<AFX_PMSG>(handler);
}

#define AFX_MSG_ENTRY(message, code, first, last, sig, type, member) \
  {message, code, first, last, sig, AfxPackHandler(static_cast<type>(&ThisClass::member))},
#define AFX_WND_ENTRY(message, sig, type, member) AFX_MSG_ENTRY(message, 0, 0, 0, sig, type, member)

// Window messages.
#define ON_WM_CREATE() AFX_WND_ENTRY(WM_CREATE, AfxSig_i_s, int (CWnd::*)(LPCREATESTRUCT), OnCreate)
#define ON_WM_NCCREATE() \
  AFX_WND_ENTRY(WM_NCCREATE, AfxSig_b_s, BOOL (CWnd::*)(LPCREATESTRUCT), OnNcCreate)
#define ON_WM_DESTROY() AFX_WND_ENTRY(WM_DESTROY, AfxSig_v_v, void (CWnd::*)(), OnDestroy)
#define ON_WM_NCDESTROY() AFX_WND_ENTRY(WM_NCDESTROY, AfxSig_v_v, void (CWnd::*)(), OnNcDestroy)
#define ON_WM_CLOSE() AFX_WND_ENTRY(WM_CLOSE, AfxSig_v_v, void (CWnd::*)(), OnClose)
#define ON_WM_PAINT() AFX_WND_ENTRY(WM_PAINT, AfxSig_v_v, void (CWnd::*)(), OnPaint)
#define ON_WM_NCPAINT() AFX_WND_ENTRY(WM_NCPAINT, AfxSig_v_v, void (CWnd::*)(), OnNcPaint)
#define ON_WM_ERASEBKGND() \
  AFX_WND_ENTRY(WM_ERASEBKGND, AfxSig_b_D, BOOL (CWnd::*)(CDC*), OnEraseBkgnd)
#define ON_WM_CTLCOLOR() \
  AFX_WND_ENTRY(WM_CTLCOLOR, AfxSig_h_D_W_u, HBRUSH (CWnd::*)(CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_SIZE() AFX_WND_ENTRY(WM_SIZE, AfxSig_v_u_i_i, void (CWnd::*)(UINT, int, int), OnSize)
#define ON_WM_MOVE() AFX_WND_ENTRY(WM_MOVE, AfxSig_v_i_i, void (CWnd::*)(int, int), OnMove)
#define ON_WM_SIZING() \
  AFX_WND_ENTRY(WM_SIZING, AfxSig_v_u_lp, void (CWnd::*)(UINT, LPRECT), OnSizing)
#define ON_WM_MOVING() \
  AFX_WND_ENTRY(WM_MOVING, AfxSig_v_u_lp, void (CWnd::*)(UINT, LPRECT), OnMoving)
#define ON_WM_WINDOWPOSCHANGING()                                                     \
  AFX_WND_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_v_WINDOWPOS, void (CWnd::*)(WINDOWPOS*), \
                OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED()                                                     \
  AFX_WND_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_WINDOWPOS, void (CWnd::*)(WINDOWPOS*), \
                OnWindowPosChanged)
#define ON_WM_GETMINMAXINFO() \
  AFX_WND_ENTRY(WM_GETMINMAXINFO, AfxSig_v_MINMAXINFO, void (CWnd::*)(MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_SHOWWINDOW() \
  AFX_WND_ENTRY(WM_SHOWWINDOW, AfxSig_v_b_u, void (CWnd::*)(BOOL, UINT), OnShowWindow)
#define ON_WM_ENABLE() AFX_WND_ENTRY(WM_ENABLE, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnable)
#define ON_WM_ACTIVATE() \
  AFX_WND_ENTRY(WM_ACTIVATE, AfxSig_v_u_W_b, void (CWnd::*)(UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_MDIACTIVATE() \
  AFX_WND_ENTRY(WM_MDIACTIVATE, AfxSig_v_b_W_W, void (CWnd::*)(BOOL, CWnd*, CWnd*), OnMDIActivate)
#define ON_WM_MOUSEACTIVATE() \
  AFX_WND_ENTRY(WM_MOUSEACTIVATE, AfxSig_i_W_u_u, int (CWnd::*)(CWnd*, UINT, UINT), OnMouseActivate)
#define ON_WM_SETFOCUS() AFX_WND_ENTRY(WM_SETFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() \
  AFX_WND_ENTRY(WM_KILLFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), OnKillFocus)
#define ON_WM_CAPTURECHANGED() \
  AFX_WND_ENTRY(WM_CAPTURECHANGED, AfxSig_v_lW, void (CWnd::*)(CWnd*), OnCaptureChanged)
#define ON_WM_CANCELMODE() AFX_WND_ENTRY(WM_CANCELMODE, AfxSig_v_v, void (CWnd::*)(), OnCancelMode)
#define ON_WM_SYSCOLORCHANGE() \
  AFX_WND_ENTRY(WM_SYSCOLORCHANGE, AfxSig_v_v, void (CWnd::*)(), OnSysColorChange)
#define ON_WM_SETTINGCHANGE() \
  AFX_WND_ENTRY(WM_SETTINGCHANGE, AfxSig_v_u_s, void (CWnd::*)(UINT, LPCTSTR), OnSettingChange)
#define ON_WM_SYSCOMMAND() \
  AFX_WND_ENTRY(WM_SYSCOMMAND, AfxSig_v_u_l, void (CWnd::*)(UINT, LPARAM), OnSysCommand)
#define ON_WM_TIMER() AFX_WND_ENTRY(WM_TIMER, AfxSig_v_timer, void (CWnd::*)(UINT_PTR), OnTimer)
#define ON_WM_HSCROLL() \
  AFX_WND_ENTRY(WM_HSCROLL, AfxSig_v_u_u_S, void (CWnd::*)(UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL() \
  AFX_WND_ENTRY(WM_VSCROLL, AfxSig_v_u_u_S, void (CWnd::*)(UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_GETDLGCODE() AFX_WND_ENTRY(WM_GETDLGCODE, AfxSig_u_v, UINT (CWnd::*)(), OnGetDlgCode)

#define AFX_MOUSE_ENTRY(message, member) \
  AFX_WND_ENTRY(message, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), member)
#define ON_WM_LBUTTONDOWN() AFX_MOUSE_ENTRY(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE_ENTRY(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE_ENTRY(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MOUSE_ENTRY(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_MOUSE_ENTRY(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_MOUSE_ENTRY(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MOUSEMOVE() AFX_MOUSE_ENTRY(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_MOUSELEAVE() AFX_WND_ENTRY(WM_MOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), OnMouseLeave)
#define ON_WM_MOUSEWHEEL() \
  AFX_WND_ENTRY(WM_MOUSEWHEEL, AfxSig_b_u_i_p, BOOL (CWnd::*)(UINT, short, CPoint), OnMouseWheel)
#define ON_WM_CONTEXTMENU() \
  AFX_WND_ENTRY(WM_CONTEXTMENU, AfxSig_v_W_p, void (CWnd::*)(CWnd*, CPoint), OnContextMenu)
#define ON_WM_SETCURSOR() \
  AFX_WND_ENTRY(WM_SETCURSOR, AfxSig_b_W_u_u, BOOL (CWnd::*)(CWnd*, UINT, UINT), OnSetCursor)

#define AFX_KEY_ENTRY(message, member) \
  AFX_WND_ENTRY(message, AfxSig_v_u_u_u, void (CWnd::*)(UINT, UINT, UINT), member)
#define ON_WM_KEYDOWN() AFX_KEY_ENTRY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() AFX_KEY_ENTRY(WM_KEYUP, OnKeyUp)
#define ON_WM_CHAR() AFX_KEY_ENTRY(WM_CHAR, OnChar)
#define ON_WM_SYSKEYDOWN() AFX_KEY_ENTRY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSCHAR() AFX_KEY_ENTRY(WM_SYSCHAR, OnSysChar)

#define ON_WM_NCHITTEST() \
  AFX_WND_ENTRY(WM_NCHITTEST, AfxSig_l_p, LRESULT (CWnd::*)(CPoint), OnNcHitTest)
#define ON_WM_NCCALCSIZE() \
  AFX_WND_ENTRY(WM_NCCALCSIZE, AfxSig_v_b_s, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*), OnNcCalcSize)
#define ON_WM_NCACTIVATE() \
  AFX_WND_ENTRY(WM_NCACTIVATE, AfxSig_b_b, BOOL (CWnd::*)(BOOL), OnNcActivate)
#define AFX_NCMOUSE_ENTRY(message, member) \
  AFX_WND_ENTRY(message, AfxSig_v_hit_p, void (CWnd::*)(UINT, CPoint), member)
#define ON_WM_NCLBUTTONDOWN() AFX_NCMOUSE_ENTRY(WM_NCLBUTTONDOWN, OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_NCMOUSE_ENTRY(WM_NCLBUTTONUP, OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_NCMOUSE_ENTRY(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_NCMOUSE_ENTRY(WM_NCRBUTTONDOWN, OnNcRButtonDown)
#define ON_WM_NCMOUSEMOVE() AFX_NCMOUSE_ENTRY(WM_NCMOUSEMOVE, OnNcMouseMove)

#define ON_WM_MEASUREITEM()                                                                   \
  AFX_WND_ENTRY(WM_MEASUREITEM, AfxSig_v_i_MEASURE, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), \
                OnMeasureItem)
#define ON_WM_DRAWITEM() \
  AFX_WND_ENTRY(WM_DRAWITEM, AfxSig_v_i_DRAW, void (CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_INITMENU() AFX_WND_ENTRY(WM_INITMENU, AfxSig_v_M, void (CWnd::*)(CMenu*), OnInitMenu)
#define ON_WM_INITMENUPOPUP()                                                         \
  AFX_WND_ENTRY(WM_INITMENUPOPUP, AfxSig_v_M_u_b, void (CWnd::*)(CMenu*, UINT, BOOL), \
                OnInitMenuPopup)
#define ON_WM_MENUSELECT() \
  AFX_WND_ENTRY(WM_MENUSELECT, AfxSig_v_u_u_h, void (CWnd::*)(UINT, UINT, HMENU), OnMenuSelect)
#define ON_WM_MENUCHAR() \
  AFX_WND_ENTRY(WM_MENUCHAR, AfxSig_l_u_u_M, LRESULT (CWnd::*)(UINT, UINT, CMenu*), OnMenuChar)
#define ON_WM_ENTERMENULOOP() \
  AFX_WND_ENTRY(WM_ENTERMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() \
  AFX_WND_ENTRY(WM_EXITMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnExitMenuLoop)
#define ON_WM_ENTERIDLE() \
  AFX_WND_ENTRY(WM_ENTERIDLE, AfxSig_v_u_W, void (CWnd::*)(UINT, CWnd*), OnEnterIdle)

// Any other message; the handler gets both parameters unchanged.
#define ON_MESSAGE(message, member) \
  AFX_WND_ENTRY(message, AfxSig_l_w_l, LRESULT (CWnd::*)(WPARAM, LPARAM), member)
#define ON_MESSAGE_VOID(message, member) \
  AFX_WND_ENTRY(message, AfxSig_v_v, void (CWnd::*)(), member)

// Messages that the parent reflects to the control.
#define ON_WM_CTLCOLOR_REFLECT() \
  AFX_WND_ENTRY(AFX_WM_REFLECT + WM_CTLCOLOR, AfxSig_h_D_u, HBRUSH(CWnd::*)(CDC*, UINT), CtlColor)
#define ON_WM_HSCROLL_REFLECT()                                                               \
  AFX_WND_ENTRY(AFX_WM_REFLECT + WM_HSCROLL, AfxSig_v_u_u_reflect, void(CWnd::*)(UINT, UINT), \
                HScroll)
#define ON_WM_VSCROLL_REFLECT()                                                               \
  AFX_WND_ENTRY(AFX_WM_REFLECT + WM_VSCROLL, AfxSig_v_u_u_reflect, void(CWnd::*)(UINT, UINT), \
                VScroll)

// Commands of menus, accelerators and bars.
#define ON_COMMAND(id, member) \
  AFX_MSG_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void (CCmdTarget::*)(), member)
#define ON_COMMAND_RANGE(id, idLast, member)                                                     \
  AFX_MSG_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, void (CCmdTarget::*)(UINT), \
                member)
#define ON_COMMAND_EX(id, member) \
  AFX_MSG_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_EX, BOOL (CCmdTarget::*)(UINT), member)
#define ON_UPDATE_COMMAND_UI(id, member)                               \
  AFX_MSG_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, \
                void (CCmdTarget::*)(CCmdUI*), member)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, member)                     \
  AFX_MSG_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, \
                void (CCmdTarget::*)(CCmdUI*), member)

// Notifications of controls.
#define ON_CONTROL(code, id, member) \
  AFX_MSG_ENTRY(WM_COMMAND, WORD(code), id, id, AfxSigCmd_v, void (CCmdTarget::*)(), member)
#define ON_CONTROL_RANGE(code, id, idLast, member)                                               \
  AFX_MSG_ENTRY(WM_COMMAND, WORD(code), id, idLast, AfxSigCmd_RANGE, void (CCmdTarget::*)(UINT), \
                member)
#define ON_CONTROL_REFLECT(code, member)                                                           \
  AFX_MSG_ENTRY(AFX_WM_REFLECT + WM_COMMAND, WORD(code), 0, 0, AfxSigCmd_v, void(CCmdTarget::*)(), \
                member)
#define ON_CONTROL_REFLECT_EX(code, member)                                                        \
  AFX_MSG_ENTRY(AFX_WM_REFLECT + WM_COMMAND, WORD(code), 0, 0, AfxSigCmd_b, BOOL(CCmdTarget::*)(), \
                member)
#define ON_NOTIFY(code, id, member)                            \
  AFX_MSG_ENTRY(WM_NOTIFY, WORD(code), id, id, AfxSigNotify_v, \
                void (CCmdTarget::*)(NMHDR*, LRESULT*), member)
#define ON_NOTIFY_EX(code, id, member)                          \
  AFX_MSG_ENTRY(WM_NOTIFY, WORD(code), id, id, AfxSigNotify_EX, \
                BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), member)
#define ON_NOTIFY_EX_RANGE(code, id, idLast, member)                \
  AFX_MSG_ENTRY(WM_NOTIFY, WORD(code), id, idLast, AfxSigNotify_EX, \
                BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), member)
#define ON_NOTIFY_REFLECT(code, member)                                       \
  AFX_MSG_ENTRY(AFX_WM_REFLECT + WM_NOTIFY, WORD(code), 0, 0, AfxSigNotify_v, \
                void(CCmdTarget::*)(NMHDR*, LRESULT*), member)
#define ON_NOTIFY_REFLECT_EX(code, member)                                    \
  AFX_MSG_ENTRY(AFX_WM_REFLECT + WM_NOTIFY, WORD(code), 0, 0, AfxSigNotify_b, \
                BOOL(CCmdTarget::*)(NMHDR*, LRESULT*), member)

#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_BN_DOUBLECLICKED(id, member) ON_CONTROL(BN_DOUBLECLICKED, id, member)
#define ON_BN_SETFOCUS(id, member) ON_CONTROL(BN_SETFOCUS, id, member)
#define ON_BN_KILLFOCUS(id, member) ON_CONTROL(BN_KILLFOCUS, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_EN_UPDATE(id, member) ON_CONTROL(EN_UPDATE, id, member)
#define ON_EN_SETFOCUS(id, member) ON_CONTROL(EN_SETFOCUS, id, member)
#define ON_EN_KILLFOCUS(id, member) ON_CONTROL(EN_KILLFOCUS, id, member)
#define ON_EN_MAXTEXT(id, member) ON_CONTROL(EN_MAXTEXT, id, member)
#define ON_LBN_SELCHANGE(id, member) ON_CONTROL(LBN_SELCHANGE, id, member)
#define ON_LBN_DBLCLK(id, member) ON_CONTROL(LBN_DBLCLK, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)
#define ON_CBN_EDITCHANGE(id, member) ON_CONTROL(CBN_EDITCHANGE, id, member)
#define ON_STN_CLICKED(id, member) ON_CONTROL(STN_CLICKED, id, member)
