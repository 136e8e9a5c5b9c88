#include "statusbar/win/dyn_input_dialog.h"

#include "afxwin.h"

#include "ground/win/module_resources.h"
#include "kernel/globals.h"
#include "resources/resource_ids.h"
#include "rxmfcapi.h"
#include "statusbar/pane_rules.h"

CDynInputDlg::CDynInputDlg(CWnd* parent)
    : GuardedWindow(IDD_DYN_INPUT, parent),
      m_nChoice(qvx::ChoiceOfFields(QvxGeLib::g_iMaxDynDimNum)) {}

void CDynInputDlg::DoDataExchange(CDataExchange* exchange) {
  GlwCAcUiDialog::DoDataExchange(exchange);
  DDX_Radio(exchange, IDC_DYN_FIELDS, m_nChoice);
}

// A number other than 1 and 2 is shown as "all"; OK then stores 10, the value of "all".
void CDynInputDlg::OnOK() {
  if (!UpdateData(TRUE)) return;
  QvxGeLib::g_iMaxDynDimNum = qvx::FieldsOfChoice(m_nChoice);
  EndDialog(IDOK);
}

void ShowDynInputDialog() {
  const qvx::ModuleResources resources;
  CDynInputDlg(acedGetAcadFrame()).DoModal();
}
