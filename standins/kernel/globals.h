// The settings that the kernel shares with the modules of the family, and functions for them. Each
// setting is exported data; settings.h has the table with types, defaults and meanings. The kernel
// reads them from the registry when it is loaded; SaveGlobalToReg writes them.
#pragma once

#include "afx.h"
#include "kernel/kernel_export.h"
#include "ground/plain_types.h"

class CWnd;
class AcDbDatabase;

extern QVX_KERNEL int g_bDisableHook;
extern QVX_KERNEL int g_nCustomFlag;
extern QVX_KERNEL int g_bHideCaption;
extern QVX_KERNEL int g_bAutoOpenRecent;
extern QVX_KERNEL CString g_sRecentFiles;
extern QVX_KERNEL wchar_t g_szFileNameToOpen[260];
extern QVX_KERNEL wchar_t g_szInitCmdStr[512];
extern QVX_KERNEL int g_bDwgTabBar;
extern QVX_KERNEL int g_bZoomKey;
extern QVX_KERNEL int g_bShiftToggle;
extern QVX_KERNEL int g_nSpeedMenu;
extern QVX_KERNEL int g_nRBtnMenuTime;
extern QVX_KERNEL int g_bDblClkEditObj;
extern QVX_KERNEL int g_bEnableSelectPreview;
extern QVX_KERNEL int g_bDefaultOpenFirst;
extern QVX_KERNEL int g_bLimitHeight;
extern QVX_KERNEL int g_bScrollBar;
extern QVX_KERNEL int g_iMenuRowHeight;
extern QVX_KERNEL COLORREF g_menuColors[4];
extern QVX_KERNEL int g_bShowMenuTip;
extern QVX_KERNEL int g_iMenuType;
extern QVX_KERNEL int g_nRunMode;
extern QVX_KERNEL HINSTANCE g_hQvxDll;
extern QVX_KERNEL int g_iInPlaceFontHeight;
extern QVX_KERNEL COLORREF g_colorInPlaceGround;
extern QVX_KERNEL COLORREF g_colorInPlaceText;
extern QVX_KERNEL int g_bMakeGroup;
extern QVX_KERNEL int g_bDynamicCoord;
extern QVX_KERNEL int g_nDimAdjust;
extern QVX_KERNEL int g_nProductId;
extern QVX_KERNEL double g_nVersion;
extern QVX_KERNEL double g_dHostVersion;
extern QVX_KERNEL CWnd* g_pContextMenu;

// Settings of the geometry library.
struct QVX_KERNEL QvxGeLib {
  static int g_bDynInput;
  static int g_iMaxDynDimNum;
  static AcDbDatabase* g_pCurrentDb;
  static wchar_t g_sAppPath[260];
};

// The product's key path below either root, with the host release and the product number, so that
// releases and products have separate settings. Valid until the kernel is unloaded.
QVX_KERNEL const wchar_t* GetRegLocation();

QVX_KERNEL int GetCustomFlag();

// Writes every kept setting under GetRegLocation() + "\Settings"; a refused write is ignored.
QVX_KERNEL void SaveGlobalToReg();

// Updates the kernel's data about the current drawing; called after a drawing or a menu was loaded.
// Also marks the data of the current drawing as ready (TDocData::m_bReady).
QVX_KERNEL void DocStatus();

// Settings by name, for tools that drive the program. Numbers are decimal or 0x hexadecimal; one
// element of an array is written name[i]. 0 for an unknown name or a value of the wrong form.
extern "C" QVX_KERNEL int QvxSetSetting(const wchar_t* name, const wchar_t* value);
// Fills `out` (`units` wide characters, always terminated); 0 for an unknown name.
extern "C" QVX_KERNEL int QvxGetSetting(const wchar_t* name, wchar_t* out, int units);
