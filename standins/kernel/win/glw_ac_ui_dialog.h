// The base class of the modules' dialogs, derived from the host's dialog.
#pragma once

#include "afxwin.h"
#include "afxext.h"

#include "acui.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL GlwCAcUiDialog : public CAcUiDialog {
  DECLARE_DYNAMIC(GlwCAcUiDialog)
 public:
  // The module with the dialog's resources; null: the current one.
  explicit GlwCAcUiDialog(UINT number, CWnd* parent = nullptr, HINSTANCE module = nullptr);
  ~GlwCAcUiDialog() override;
};
