#include "frame/host_window.h"

#include "acdocman.h"
#include "afxwin.h"
#include "frame/host_release.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"

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

void SendToHost(const wchar_t* text) {
  AcApDocManager* documents = acDocManagerPtr();
  AcApDocument* current = documents ? documents->curDocument() : nullptr;
  if (current) documents->sendStringToExecute(current, text, true, false, true);
}
