#include "frame/commands/win/lisp_functions.h"

#include <memory>

#include "afxwin.h"

#include "aced.h"
#include "adslib.h"
#include "frame/commands/win/live_menu_commands.h"
#include "ground/document_paths.h"
#include "ground/host_lisp.h"
#include "ground/product_registry.h"
#include "ground/support_files.h"
#include "ground/win/open_by_shell.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"
#include "kernel/tsplitpath.h"
#include "kernel/tviewportresize.h"
#include "rxmfcapi.h"

namespace {

using qvx::OwnedChain;

// The first argument when it is a text, else null; valid as long as the list.
const wchar_t* FirstText(const OwnedChain& arguments) {
  return arguments && arguments->restype == RTSTR ? arguments->resval.rstring : nullptr;
}

bool OpenDocument(const wchar_t* path) { return qvx::OpenByShell(adsw_acadMainWnd(), path); }

DocumentSearch ProductDocuments() {
  CString setup;
  qvx::MachineKey(L"").GetValue(L"SetupLocation", setup);
  return {ParentFolder(QvxGeLib::g_sAppPath), TWCString(setup), qvx::FindFile};
}

void OpenTutorial() {
  TWCString found, lastTried;
  if (!FindDocument(ProductDocuments(), L"ShowMe\\qvxtut.chm", found, lastTried))
    adsout << L"\n尚未安装有自学教程电子文档" << lastTried;
  else if (!OpenDocument(found))
    adsout << L"\n帮助文件qvxtut.chm不存在，或您没有安装HTML帮助系统(安装IE 4.0或更高的版本)。";
}

void OpenFlashTutorial() {
  TWCString path = ParentFolder(QvxGeLib::g_sAppPath);
  path += L"FlashTut\\index.htm";
  TWCString found;
  if (!qvx::FindFile(path, found))
    adsout << L"\n尚未安装有Flash教学文档" << path;
  else if (!OpenDocument(found))
    adsout << L"\n未能启动Flash教学";
}

void OpenQuestions() {
  TWCString found;
  if (!qvx::FindFile(L"faq.doc", found))
    adsout << L"\n尚未有常见问题文件";
  else if (!OpenDocument(found))
    adsout << L"\n无法打开FAQ.DOC!";
}

// Only the file name of a path is looked up.
void PlayNamedClip(const TWCString& name) {
  TWCString tail(L"ShowMe\\"), found, lastTried;
  tail += name;
  tail += L".avi";
  if (!FindDocument(ProductDocuments(), tail, found, lastTried))
    adsout << L"\n没有找到相应的AVI文件！";
  else if (!OpenDocument(found))
    adsout << L"\n您没有AVI的播放程序。";
}

void PlayClip() {
  {
    const OwnedChain arguments(acedGetArgs());
    if (const wchar_t* file = FirstText(arguments)) {
      const TWCString name(TSplitpathOperator(file).Name());
      if (!name.IsEmpty()) PlayNamedClip(name);
    }
  }
  acedRetVoid();
}

void SetMenu() {
  {
    const OwnedChain arguments(acedGetArgs());
    SetMenuFile(FirstText(arguments));
  }
  acedRetVoid();
}

const LispRow kFunctions[] = {
    {L"tcmdavi", PlayClip},
    {L"C:TDragVp", TViewportResize::ApplyChange},
    {L"C:QvxFaq", OpenQuestions},
    {L"C:QvxTut", OpenTutorial},
    {L"C:TFlashTut", OpenFlashTutorial},
    {L"TSetMenu", SetMenu},
};

}  // namespace

const LispRow* LispFunctions(int* count) {
  *count = static_cast<int>(sizeof kFunctions / sizeof kFunctions[0]);
  return kFunctions;
}
