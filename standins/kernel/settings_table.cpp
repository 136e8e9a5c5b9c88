#include "kernel/globals.h"
#include "kernel/settings.h"
#include "qvx_version.h"

namespace {

constexpr auto kInt = SettingType::kInt;
constexpr auto kColor = SettingType::kColor;
constexpr auto kReal = SettingType::kReal;
constexpr auto kText = SettingType::kText;
constexpr auto kBuffer = SettingType::kBuffer;
constexpr auto kHandle = SettingType::kHandle;
constexpr auto kUser = SettingHome::kUser;
constexpr auto kRelease = SettingHome::kRelease;
constexpr auto kSession = SettingHome::kSession;

// Colours are 0x00BBGGRR.
const Setting kSettings[] = {
    {L"g_bDisableHook", kInt, kUser, &g_bDisableHook, 1, L"0",
     L"the message filter passes everything"},
    {L"g_nCustomFlag", kInt, kUser, &g_nCustomFlag, 1, L"0",
     L"custom flags: what is left out at start"},
    {L"g_bHideCaption", kInt, kUser, &g_bHideCaption, 1, L"0",
     L"the host frame loses its caption at start"},
    {L"g_bAutoOpenRecent", kInt, kUser, &g_bAutoOpenRecent, 1, L"0",
     L"recent files are reopened at start"},
    {L"g_sRecentFiles", kText, kUser, &g_sRecentFiles, 1, L"",
     L"files to reopen, each followed by a comma"},
    {L"g_szFileNameToOpen", kBuffer, kSession, g_szFileNameToOpen, 260, L"",
     L"file of an outside open request"},
    {L"g_szInitCmdStr", kBuffer, kSession, g_szInitCmdStr, 512, L"",
     L"command of an outside open request"},
    {L"g_bDwgTabBar", kInt, kUser, &g_bDwgTabBar, 1, L"1", L"the drawing tab strip is shown"},
    {L"g_bZoomKey", kInt, kUser, &g_bZoomKey, 1, L"1", L"backquote and Tab zoom at the cursor"},
    {L"g_bShiftToggle", kInt, kSession, &g_bShiftToggle, 1, L"0",
     L"flips at each release of Shift"},
    {L"g_nSpeedMenu", kInt, kUser, &g_nSpeedMenu, 1, L"3",
     L"right button: 0 the host's; 1 menu at each click; 2 with a selection or Ctrl; 3 with a "
     L"selection or a long press"},
    {L"g_nRBtnMenuTime", kInt, kUser, &g_nRBtnMenuTime, 1, L"250", L"milliseconds of a long press"},
    {L"g_bDblClkEditObj", kInt, kUser, &g_bDblClkEditObj, 1, L"1",
     L"a double click on one object runs the object editor"},
    {L"g_bEnableSelectPreview", kInt, kUser, &g_bEnableSelectPreview, 1, L"1",
     L"the selection preview is allowed"},
    {L"g_bDefaultOpenFirst", kInt, kUser, &g_bDefaultOpenFirst, 1, L"0",
     L"the screen menu opens along its first lines"},
    {L"g_bLimitHeight", kInt, kUser, &g_bLimitHeight, 1, L"0",
     L"only the open group of the screen menu scrolls"},
    {L"g_bScrollBar", kInt, kUser, &g_bScrollBar, 1, L"1",
     L"the screen menu has a visible scroll bar"},
    {L"g_iMenuRowHeight", kInt, kUser, &g_iMenuRowHeight, 1, L"25",
     L"row height of the screen menu in pixels"},
    {L"g_menuColors", kColor, kUser, g_menuColors, 4, L"0xF7F3EE 0xEFE4D8 0xE6D5C2 0xDCC6AC",
     L"background of the screen menu by depth"},
    {L"g_bShowMenuTip", kInt, kUser, &g_bShowMenuTip, 1, L"1",
     L"rows of the screen menu show their help as a tip"},
    {L"g_iMenuType", kInt, kUser, &g_iMenuType, 1, L"0",
     L"menu kind: 0 normal, 1 simple, 2 run mode"},
    {L"g_nRunMode", kInt, kUser, &g_nRunMode, 1, L"0", L"run mode on"},
    {L"g_hQvxDll", kHandle, kSession, &g_hQvxDll, 1, L"", L"the menu's icon library"},
    {L"g_iInPlaceFontHeight", kInt, kUser, &g_iInPlaceFontHeight, 1, L"16",
     L"font height of the in-place editor in pixels"},
    {L"g_colorInPlaceGround", kColor, kUser, &g_colorInPlaceGround, 1, L"0xE1FFFF",
     L"background of the in-place editor"},
    {L"g_colorInPlaceText", kColor, kUser, &g_colorInPlaceText, 1, L"0x000000",
     L"text of the in-place editor"},
    {L"g_bMakeGroup", kInt, kUser, &g_bMakeGroup, 1, L"1", L"grouping on"},
    {L"g_bDynamicCoord", kInt, kUser, &g_bDynamicCoord, 1, L"1", L"dynamic dimensions on"},
    {L"g_bDynInput", kInt, kUser, &QvxGeLib::g_bDynInput, 1, L"1", L"dynamic input on"},
    {L"g_iMaxDynDimNum", kInt, kUser, &QvxGeLib::g_iMaxDynDimNum, 1, L"2",
     L"dynamic input fields shown: 1, 2 or 10"},
    {L"g_nDimAdjust", kInt, kUser, &g_nDimAdjust, 1, L"2",
     L"adjusting of dimensions after a scale change: 0 not at all"},
    {L"g_nProductId", kInt, kRelease, &g_nProductId, 1, L"1", L"which product of the family runs"},
    {L"g_nVersion", kReal, kRelease, &g_nVersion, 1, QVX_VERSION_NUMBER, L"product version"},
    {L"g_dHostVersion", kReal, kSession, &g_dHostVersion, 1, L"24", L"the host's release number"},
    {L"g_pCurrentDb", kHandle, kSession, &QvxGeLib::g_pCurrentDb, 1, L"",
     L"database of the current drawing"},
    {L"g_sAppPath", kBuffer, kSession, QvxGeLib::g_sAppPath, 260, L"",
     L"the program folder, ending in a backslash"},
    {L"g_pContextMenu", kHandle, kSession, &g_pContextMenu, 1, L"",
     L"the context window, for sibling modules"},
};

}  // namespace

const Setting* Settings(int* count) {
  *count = static_cast<int>(sizeof kSettings / sizeof kSettings[0]);
  return kSettings;
}
