#include "afxstr.h"
#include "tools/qmn/code_page.h"

unsigned EnginePage() { return AFX_ANSI_PAGE; }
