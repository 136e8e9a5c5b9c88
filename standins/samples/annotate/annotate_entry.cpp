// The sample annotation module: two dialogs that the in-place text editor calls by name.
#include "aced.h"
#include "adslib.h"
#include "chars_dialog.h"
#include "words_dialog.h"

namespace {

constexpr wchar_t kWordFile[] = L"qvxwords.txt";

std::wstring WordFile() {
  ACHAR found[MAX_PATH] = {};
  return acedFindFile(kWordFile, found) == RTNORM ? found : L"";
}

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&WordFile), &module);
  return module;
}

// Makes the module's resources current for a dialog.
class OwnResources {
 public:
  OwnResources() : m_before(AfxGetResourceHandle()) { AfxSetResourceHandle(ThisModule()); }
  ~OwnResources() { AfxSetResourceHandle(m_before); }
  OwnResources(const OwnResources&) = delete;
  OwnResources& operator=(const OwnResources&) = delete;

 private:
  HINSTANCE m_before;
};

bool Choose(CChooseDialog& dialog, CString& result) {
  const OwnResources resources;
  if (dialog.DoModal() != IDOK) return false;
  result = dialog.Choice();
  return true;
}

}  // namespace

// True: the user chose a text, which is in `result`; otherwise it is unchanged.
extern "C" __declspec(dllexport) bool GetSpecialChar(CWnd* parent, CString& result) {
  CCharsDialog dialog(parent);
  return Choose(dialog, result);
}

// The last argument is the kind of library; there is one.
extern "C" __declspec(dllexport) bool GetWordFromLib(CWnd* parent, CString& result, int) {
  CWordsDialog dialog(WordFile(), parent);
  return Choose(dialog, result);
}

extern "C" __declspec(dllexport) AcRx::AppRetCode
    acrxEntryPoint(AcRx::AppMsgCode message, void* packet) {
  if (message == AcRx::kInitAppMsg) {
    acrxUnlockApplication(packet);
    acrxRegisterAppMDIAware(packet);
  }
  return AcRx::kRetOK;
}
