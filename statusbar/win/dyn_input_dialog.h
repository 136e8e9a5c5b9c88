// The dialog "动态输入设置": the number of input fields shown at a time.
#pragma once

#include "ground/win/guarded_window.h"
#include "kernel/win/glw_ac_ui_dialog.h"

class CDynInputDlg : public qvx::GuardedWindow<GlwCAcUiDialog> {
 public:
  explicit CDynInputDlg(CWnd* parent);

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;

 private:
  int m_nChoice;
};

void ShowDynInputDialog();  // modal over the host's frame
