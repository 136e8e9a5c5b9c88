// The dialog "动态输入设置": how many input fields are shown at a time.
#pragma once

#include "kernel/win/glw_ac_ui_dialog.h"

class CDynInputDlg : public GlwCAcUiDialog {
 public:
  explicit CDynInputDlg(CWnd* parent);

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;

 private:
  int m_nChoice;
};

void ShowDynInputDialog();  // modal over the host's frame
