#include "frame/start/win/host_window.h"

#include "afxwin.h"

#include "frame/start/host_release.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"

CWnd* HostFrame() { return acedGetAcadFrame(); }

void SetFrameTitle(const wchar_t* title) {
  CWnd* frame = acedGetAcadFrame();
  if (!frame) return;
  CString present;
  frame->GetWindowText(present);
  frame->SetWindowText(FrameTitle(title, present, g_dHostVersion));
}

void HideFrameCaption() {
  if (CWnd* frame = acedGetAcadFrame()) frame->ModifyStyle(WS_CAPTION, 0);
}
