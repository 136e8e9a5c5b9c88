#include "kernel/win/glw_ac_ui_dialog.h"

IMPLEMENT_DYNAMIC(GlwCAcUiDialog, CAcUiDialog)

GlwCAcUiDialog::GlwCAcUiDialog(UINT number, CWnd* parent, HINSTANCE module)
    : CAcUiDialog(number, parent, module) {}

GlwCAcUiDialog::~GlwCAcUiDialog() = default;
