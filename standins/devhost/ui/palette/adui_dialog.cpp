// The published dialog classes.
#include "afxext.h"

#include "acui.h"

IMPLEMENT_DYNAMIC(CAdUiBaseDialog, CDialog)
IMPLEMENT_DYNAMIC(CAdUiDialog, CAdUiBaseDialog)
IMPLEMENT_DYNAMIC(CAcUiDialog, CAdUiDialog)

namespace {

// Makes the module's resources current while its dialog is created and runs.
class ResourceScope {
 public:
  explicit ResourceScope(HINSTANCE module) : m_before(AfxGetResourceHandle()) {
    if (module) AfxSetResourceHandle(module);
  }
  ~ResourceScope() { AfxSetResourceHandle(m_before); }
  ResourceScope(const ResourceScope&) = delete;
  ResourceScope& operator=(const ResourceScope&) = delete;

 private:
  HINSTANCE m_before;
};

}  // namespace

CAdUiBaseDialog::CAdUiBaseDialog(UINT idd, CWnd* pParent, HINSTANCE hDialogResource)
    : CDialog(idd, pParent), m_hDialogResourceSaved(hDialogResource) {}

INT_PTR CAdUiBaseDialog::DoModal() {
  const ResourceScope scope(m_hDialogResourceSaved);
  return CDialog::DoModal();
}

BOOL CAdUiBaseDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
  const ResourceScope scope(m_hDialogResourceSaved);
  return CDialog::Create(nIDTemplate, pParentWnd);
}
