// Command search through message maps, and the state of menu rows and controls.
#include "afximpl.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
  static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
  static const AFX_MSGMAP map = {nullptr, entries};
  return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* entry, UINT message, UINT code,
                                            UINT id) {
  for (; entry->nSig != AfxSig_end; ++entry)
    if (entry->nMessage == message && entry->nCode == code && id >= entry->nID &&
        id <= entry->nLastID)
      return entry;
  return nullptr;
}

namespace {
template <class Result, class... Arguments>
Result Call(CCmdTarget* target, AFX_PMSG pfn, std::type_identity_t<Arguments>... arguments) {
  return (target->*std::bit_cast<Result (CCmdTarget::*)(Arguments...)>(pfn))(arguments...);
}

BOOL CallUpdate(CCmdTarget* target, AFX_PMSG pfn, CCmdUI* ui) {
  ui->m_bContinueRouting = FALSE;
  Call<void, CCmdUI*>(target, pfn, ui);
  BOOL handled = !ui->m_bContinueRouting;
  ui->m_bContinueRouting = FALSE;
  return handled;
}

BOOL Dispatch(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
  auto* notify = static_cast<AFX_NOTIFY*>(extra);
  switch (entry.nSig) {
    case AfxSigCmd_v:
      Call<void>(target, entry.pfn);
      return TRUE;
    case AfxSigCmd_b:
      return Call<BOOL>(target, entry.pfn);
    case AfxSigCmd_RANGE:
      Call<void, UINT>(target, entry.pfn, id);
      return TRUE;
    case AfxSigCmd_EX:
      return Call<BOOL, UINT>(target, entry.pfn, id);
    case AfxSigCmdUI:
      return CallUpdate(target, entry.pfn, static_cast<CCmdUI*>(extra));
    case AfxSigNotify_v:
      Call<void, NMHDR*, LRESULT*>(target, entry.pfn, notify->pNMHDR, notify->pResult);
      return TRUE;
    case AfxSigNotify_b:
      return Call<BOOL, NMHDR*, LRESULT*>(target, entry.pfn, notify->pNMHDR, notify->pResult);
    case AfxSigNotify_EX:
      return Call<BOOL, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, notify->pNMHDR,
                                                notify->pResult);
    default:
      return FALSE;
  }
}
}  // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  UINT code = UINT(nCode);
  UINT message = WM_COMMAND;
  if (code != CN_UPDATE_COMMAND_UI) {
    if (HIWORD(code)) message = HIWORD(code);
    code = LOWORD(code);
  }
  for (const AFX_MSGMAP* map = GetMessageMap(); map;
       map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
    const AFX_MSGMAP_ENTRY* entry = AfxFindMessageEntry(map->lpEntries, message, code, nID);
    if (!entry) continue;
    if (!pHandlerInfo) return Dispatch(this, *entry, nID, pExtra);
    *pHandlerInfo = {this, entry->pfn};
    return TRUE;
  }
  return FALSE;
}

// ---- CCmdUI

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
  m_bEnableChanged = TRUE;
  if (m_pMenu) {
    if (m_pSubMenu) return;  // a row with a sub-menu has no state
    m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
  } else if (m_pOther) {
    // Moves the focus first: a disabled window with the focus would receive the keys.
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
      m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL, 0, FALSE);
    m_pOther->EnableWindow(bOn);
  }
}

void CCmdUI::SetCheck(int nCheck) {
  if (m_pMenu) {
    if (m_pSubMenu) return;
    m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
  } else if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)) {
    m_pOther->SendMessage(BM_SETCHECK, WPARAM(nCheck));
  }
}

void CCmdUI::SetRadio(BOOL bOn) {
  SetCheck(bOn != 0);
  if (m_pMenu && bOn && !m_pSubMenu)
    m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
  if (m_pMenu) {
    if (m_pSubMenu) return;
    UINT state = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION);
    state &= ~(MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR);
    m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | state, m_nID, lpszText);
  } else if (m_pOther) {
    CString old;
    m_pOther->GetWindowText(old);
    if (old != lpszText) m_pOther->SetWindowText(lpszText);  // avoids flicker
  }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
  if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF) return TRUE;  // separator or sub-menu
  m_bEnableChanged = FALSE;
  BOOL handled = pTarget->OnCmdMsg(m_nID, int(CN_UPDATE_COMMAND_UI), this, nullptr);
  if (bDisableIfNoHndler && !m_bEnableChanged) {
    AFX_CMDHANDLERINFO info{};
    Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
  }
  return handled;
}
