// The storage of the shared settings; settings_table.cpp has the defaults.
#include "kernel/globals.h"

#include "kernel/settings.h"

int g_bDisableHook;
int g_nCustomFlag;
int g_bHideCaption;
int g_bAutoOpenRecent;
CString g_sRecentFiles;
wchar_t g_szFileNameToOpen[260];
wchar_t g_szInitCmdStr[512];
int g_bDwgTabBar;
int g_bZoomKey;
int g_bShiftToggle;
int g_nSpeedMenu;
int g_nRBtnMenuTime;
int g_bDblClkEditObj;
int g_bEnableSelectPreview;
int g_bDefaultOpenFirst;
int g_bLimitHeight;
int g_bScrollBar;
int g_iMenuRowHeight;
COLORREF g_menuColors[4];
int g_bShowMenuTip;
int g_iMenuType;
int g_nRunMode;
HINSTANCE g_hQvxDll;
int g_iInPlaceFontHeight;
COLORREF g_colorInPlaceGround;
COLORREF g_colorInPlaceText;
int g_bMakeGroup;
int g_bDynamicCoord;
int g_nDimAdjust;
int g_nProductId;
double g_nVersion;
double g_dHostVersion;
CWnd* g_pContextMenu;

int QvxGeLib::g_bDynInput;
int QvxGeLib::g_iMaxDynDimNum;
AcDbDatabase* QvxGeLib::g_pCurrentDb;
wchar_t QvxGeLib::g_sAppPath[260];

// After the data that it sets, in order of initialisation: all users of the kernel see the
// defaults.
namespace {
const bool kDefaultsAreSet = (ResetSettings(), true);
}

int GetCustomFlag() { return g_nCustomFlag; }
