// CAcUiDialog: the base class of modules' dialogs. Included by acui.h.
#pragma once

#include "aduidialog.h"

class CAcUiDialog : public CAdUiDialog {
  DECLARE_DYNAMIC(CAcUiDialog)
 public:
  explicit CAcUiDialog(UINT idd, CWnd* pParent = nullptr, HINSTANCE hDialogResource = nullptr)
      : CAdUiDialog(idd, pParent, hDialogResource) {}
};
