// The dialog class that the modules of the family derive theirs from: the host's own dialog, under
// one name, so that what all of them need has one place.
#pragma once

#include "afxwin.h"
#include "afxext.h"

#include "acui.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL GlwCAcUiDialog : public CAcUiDialog {
  DECLARE_DYNAMIC(GlwCAcUiDialog)
 public:
  // The module whose resources hold the dialog; null: those that are current.
  explicit GlwCAcUiDialog(UINT number, CWnd* parent = nullptr, HINSTANCE module = nullptr);
  ~GlwCAcUiDialog() override;
};
