#include "tests/doubles/win/palette_host.h"

#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include "aced.h"
#include "afxext.h"

#include "acdocman.h"
#include "acstatusbar.h"
#include "adslib.h"
#include "afxpriv.h"

#include "dbapserv.h"
#include "rxmfcapi.h"

namespace {

class Services : public AcDbHostApplicationServices {
 public:
  AcDbDatabase* workingDatabase() const override {
    return ThePaletteHost().hasDatabase ? reinterpret_cast<AcDbDatabase*>(8) : nullptr;
  }
  int releaseMajorVersion() const override { return ThePaletteHost().releaseMajor; }
  int releaseMinorVersion() const override { return ThePaletteHost().releaseMinor; }
  const ACHAR* getMachineRegistryProductRootKey() override { return L""; }
};

class Documents : public AcApDocManager {
 public:
  AcApDocument* curDocument() const override {
    return ThePaletteHost().documents ? reinterpret_cast<AcApDocument*>(8) : nullptr;
  }
  AcApDocument* mdiActiveDocument() const override { return curDocument(); }
  AcApDocument* document(const AcDbDatabase*) const override { return curDocument(); }
  int documentCount() const override { return ThePaletteHost().documents; }
  bool isApplicationContext() const override { return false; }
  Acad::ErrorStatus disableDocumentActivation() override { return Acad::eNotApplicable; }
  Acad::ErrorStatus enableDocumentActivation() override { return Acad::eNotApplicable; }
  bool isDocumentActivationEnabled() const override { return true; }
  AcApDocumentIterator* newAcApDocumentIterator() override { return nullptr; }
  Acad::ErrorStatus appContextOpenDocument(const ACHAR*) override { return Acad::eOk; }
  Acad::ErrorStatus appContextNewDocument(const ACHAR*) override { return Acad::eOk; }
  Acad::ErrorStatus activateDocument(AcApDocument*, bool) override { return Acad::eOk; }
  Acad::ErrorStatus closeDocument(AcApDocument*) override { return Acad::eOk; }
  Acad::ErrorStatus lockDocument(AcApDocument*, AcAp::DocLockMode, const ACHAR*, const ACHAR*,
                                 bool) override {
    return Acad::eOk;
  }
  Acad::ErrorStatus unlockDocument(AcApDocument*) override { return Acad::eOk; }
  Acad::ErrorStatus sendStringToExecute(AcApDocument*, const ACHAR* text, bool activate,
                                        bool wrapUp, bool echo) override {
    std::wstring entry = L"sent ";
    entry += text;
    if (!activate || wrapUp || !echo) entry += L" with other flags";
    ThePaletteHost().diary.push_back(entry);
    return Acad::eOk;
  }
  void addReactor(AcApDocManagerReactor*) override {}
  void removeReactor(AcApDocManagerReactor*) override {}
};

resbuf g_call{};
std::wstring g_called;

}  // namespace

PaletteHost& ThePaletteHost() {
  static auto* host = new PaletteHost;  // outlives every window
  return *host;
}

void PaletteHost::OpenFrame() {
  frame = new CMDIFrameWnd;
  frame->Create(AfxRegisterWndClass(0), L"frame", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                CRect(20, 20, 1020, 720));
  frame->EnableDocking(CBRS_ALIGN_ANY);
  view.Create(L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), frame, AFX_IDW_PANE_FIRST);
  frame->ShowWindow(SW_SHOWNOACTIVATE);
  frame->RecalcLayout();
}

void PaletteHost::CloseFrame() {
  if (frame) frame->DestroyWindow();  // deletes itself
  frame = nullptr;
}

void PaletteHost::Pump() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    if (!AfxPreTranslateMessage(&message)) {
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    }
  if (!frame) return;
  frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
  frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
  frame->RecalcLayout();
}

CMDIFrameWnd* acedGetAcadFrame() { return ThePaletteHost().frame; }
CWnd* acedGetAcadDwgView() {
  return ThePaletteHost().view.m_hWnd ? &ThePaletteHost().view : nullptr;
}
void acedRestoreStatusBar() {}
AcApStatusBar* acedGetApplicationStatusBar() { return nullptr; }

AcDbHostApplicationServices* acdbHostApplicationServices() {
  static Services services;
  return &services;
}

AcApDocManager* acDocManagerPtr() {
  static Documents documents;
  return &documents;
}

int acutPrintf(const ACHAR* format, ...) {
  ThePaletteHost().diary.push_back(std::wstring(L"printed ") + format);
  return RTNORM;
}
void acedPostCommandPrompt() { ThePaletteHost().diary.push_back(L"prompt"); }

int acedGetVar(const ACHAR* name, resbuf* result) {
  if (!std::wcscmp(name, L"CMDACTIVE")) {
    result->restype = RTSHORT;
    result->resval.rint = static_cast<short>(ThePaletteHost().commandActive);
    return RTNORM;
  }
  if (std::wcscmp(name, L"CMDNAMES")) return RTERROR;
  result->restype = RTSTR;
  result->resval.rstring = ::_wcsdup(ThePaletteHost().commandNames.c_str());
  return RTNORM;
}

resbuf* acutBuildList(int type, ...) {
  va_list arguments;
  va_start(arguments, type);
  g_called = va_arg(arguments, const wchar_t*);
  va_end(arguments);
  return &g_call;
}

int acutRelRb(resbuf* chain) {
  if (chain != &g_call) delete chain;
  return RTNORM;
}

int acedInvoke(const resbuf*, resbuf** result) {
  ThePaletteHost().diary.push_back(L"lisp " + g_called);
  const auto found = ThePaletteHost().functions.find(g_called);
  *result = nullptr;
  if (found == ThePaletteHost().functions.end()) return RTERROR;
  auto* answer = new resbuf{};
  answer->restype = RTSHORT;
  answer->resval.rint = static_cast<short>(found->second());
  *result = answer;
  return RTNORM;
}
