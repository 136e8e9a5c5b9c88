// The dialog "设置当前比例": one number, which OK sets as SetScale does.
#pragma once

#include "ground/win/guarded_window.h"
#include "kernel/win/glw_ac_ui_dialog.h"

class CPScaleDlg : public qvx::GuardedWindow<GlwCAcUiDialog> {
 public:
  CPScaleDlg(double scale, CWnd* parent);

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;

 private:
  double m_dScale;
};

// Modal over the host's frame, filled with the scale in force; false unless it ended with OK.
bool ShowScaleDialog();
