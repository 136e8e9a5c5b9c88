#include "afx.h"

#include "tools/qmn/code_page.h"

unsigned EnginePage() { return GetACP(); }
