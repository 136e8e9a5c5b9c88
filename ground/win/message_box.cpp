#include "ground/message_box.h"

#include "afxwin.h"

void qvx::ShowMessageBox(const wchar_t* text) { AfxMessageBox(text); }
