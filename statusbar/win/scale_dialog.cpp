#include "statusbar/win/scale_dialog.h"

#include "afxwin.h"

#include "ground/win/module_resources.h"
#include "kernel/drawing_scale.h"
#include "resources/resource_ids.h"
#include "rxmfcapi.h"
#include "statusbar/drawing_scale_change.h"
#include "statusbar/scale_rules.h"

CPScaleDlg::CPScaleDlg(double scale, CWnd* parent)
    : GuardedWindow(IDD_SCALE, parent), m_dScale(scale) {}

void CPScaleDlg::DoDataExchange(CDataExchange* exchange) {
  GlwCAcUiDialog::DoDataExchange(exchange);
  if (exchange->m_bSaveAndValidate) RefuseOddScale(exchange);
  DDX_Text(exchange, IDC_SCALE, m_dScale);
}

// As DDX_Text refuses text that is no number.
void CPScaleDlg::RefuseOddScale(CDataExchange* exchange) {
  CString text;
  CWnd::FromHandle(exchange->PrepareEditCtrl(IDC_SCALE))->GetWindowText(text);
  if (qvx::IsScaleText(text)) return;
  AfxMessageBox(AFX_IDP_PARSE_REAL);
  exchange->Fail();
}

// Invalid input keeps the dialog open; DDX_Text has shown the error.
void CPScaleDlg::OnOK() {
  if (!UpdateData(TRUE)) return;
  qvx::SetScale(m_dScale);
  EndDialog(IDOK);
}

bool ShowScaleDialog() {
  const qvx::ModuleResources resources;
  CPScaleDlg dialog(DocGetPScale(), acedGetAcadFrame());
  return dialog.DoModal() == IDOK;
}
