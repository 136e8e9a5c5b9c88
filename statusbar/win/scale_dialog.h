// The dialog "设置当前比例": one number; OK passes it to SetScale.
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
  static void RefuseOddScale(CDataExchange* exchange);

  double m_dScale;
};

// Modal over the host's frame, filled with the current scale; true if it ended with OK.
bool ShowScaleDialog();
