#include "frame/settings/settings_index.h"

const wchar_t kProfileFolder[] = L"<CPROFILE>";

namespace {

constexpr auto kMachine = IndexStore::kMachine;
constexpr auto kUser = IndexStore::kUser;
constexpr auto kFile = IndexStore::kProductFile;
constexpr auto kGlobal = IndexStore::kGlobal;
constexpr auto kVariable = IndexStore::kHostVariable;
constexpr auto kSymbol = IndexStore::kLispSymbol;
constexpr auto kInt = IndexType::kInt;
constexpr auto kReal = IndexType::kReal;
constexpr auto kPoint = IndexType::kPoint;
constexpr auto kText = IndexType::kText;
constexpr auto kColor = IndexType::kColor;
constexpr auto kHandle = IndexType::kHandle;
constexpr auto kNil = IndexType::kNil;

constexpr wchar_t kPalette[] = L"Settings\\ScreenMenu";
constexpr wchar_t kStarted[] = L"this release has been through the first-start list";

const IndexRow kRows[] = {
    {kMachine, L"", L"SetupLocation", kText, L"", L"frame", L"second folder of tutorial and clips"},
    {kMachine, L"InitFlag", L"InitStart15", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart16", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart16.1", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart16.2", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart17", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart17.1", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart17.2", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart18", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart18.1", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart18.2", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart19", kInt, L"0", L"frame", kStarted},
    {kMachine, L"InitFlag", L"InitStart19.1", kInt, L"0", L"frame", kStarted},

    {kUser, L"Settings", L"RecentCmd", kText, L"", L"frame",
     L"recent commands of the context menu, each followed by a comma"},
    {kUser, kProfileFolder, L"Menu", kText, L"", L"frame",
     L"the menu in force: its path without extension"},
    {kUser, kPalette, L"Obsolete", kInt, L"0", L"frame", L"not 0: there is no screen menu"},
    {kUser, kPalette, L"Visible", kInt, L"1", L"frame screenmenu",
     L"the screen menu is shown at start"},
    {kUser, kPalette, L"Alignment", kInt, L"1", L"screenmenu",
     L"docked side of the screen menu: 1 left, 0 right"},
    {kUser, kPalette, L"SizeX", kInt, L"76", L"screenmenu", L"width of the screen menu in pixels"},
    {kUser, kPalette, L"SizeY", kInt, nullptr, L"screenmenu",
     L"height of the screen menu, written only"},
    {kUser, kPalette, L"LimitHeight", kInt, L"0", L"screenmenu", L"goes into g_bLimitHeight"},
    {kUser, kPalette, L"DefaultOpenFirst", kInt, L"0", L"screenmenu",
     L"goes into g_bDefaultOpenFirst"},
    {kUser, kPalette, L"ScrollBar", kInt, L"1", L"screenmenu", L"goes into g_bScrollBar"},
    {kUser, kPalette, L"ActiveSubMenu", kInt, L"-1", L"screenmenu",
     L"line of the open group of the screen menu; -1 none"},
    {kUser, kPalette, L"PaneCallOption", kInt, nullptr, L"statusbar",
     L"written 1: a status pane called the options dialog"},
    {kUser, L"Tips", L"StartUp", kInt, L"1", L"dialogs", L"the tip of the day is shown at start"},
    {kUser, L"Tips", L"Indicator", kInt, L"0", L"dialogs", L"position of the next tip in its file"},
    {kUser, L"Tips", L"TimeStamp", kText, L"", L"dialogs",
     L"the tip file's time; another one restarts the tips"},

    {kFile, L"", L"Title", kText, L"", L"frame", L"product title in the host frame"},
    {kFile, L"", L"HelpFile", kText, L"", L"frame dialogs", L"help file"},
    {kFile, L"", L"IconFile", kText, L"", L"screenmenu dialogs",
     L"source of the palette's and the about dialog's icon"},
    {kFile, L"", L"CName", kText, L"", L"screenmenu dialogs", L"Chinese name, on the palette"},
    {kFile, L"", L"EName", kText, L"", L"dialogs", L"English name, read and not shown"},
    {kFile, L"", L"About", kText, L"", L"dialogs", L"text of the about dialog"},
    {kFile, L"", L"NewVersion", kText, L"", L"dialogs", L"version line of the about dialog"},
    {kFile, L"", L"SubVer", kText, L"", L"dialogs", L"build line of the about dialog"},
    {kFile, L"", L"Email", kText, L"", L"dialogs", L"report address; a built-in one without it"},
    {kFile, L"", L"QQ群", kText, L"", L"dialogs", L"group number; a built-in one without it"},

    {kGlobal, L"", L"g_bDisableHook", kInt, L"0", L"editor",
     L"the message filter passes everything"},
    {kGlobal, L"", L"g_nCustomFlag", kInt, L"0", L"frame editor",
     L"custom flags: what is left out at start"},
    {kGlobal, L"", L"g_bHideCaption", kInt, L"0", L"frame",
     L"the host frame loses its caption at start"},
    {kGlobal, L"", L"g_bAutoOpenRecent", kInt, L"0", L"frame",
     L"recent files are reopened at start"},
    {kGlobal, L"", L"g_sRecentFiles", kText, L"", L"frame",
     L"files to reopen, each followed by a comma"},
    {kGlobal, L"", L"g_szFileNameToOpen", kText, L"", L"popup", L"file of an outside open request"},
    {kGlobal, L"", L"g_szInitCmdStr", kText, L"", L"popup", L"command of an outside open request"},
    {kGlobal, L"", L"g_bDwgTabBar", kInt, L"1", L"doctabs editor",
     L"the drawing tab strip is shown"},
    {kGlobal, L"", L"g_bZoomKey", kInt, L"1", L"editor", L"backquote and Tab zoom at the cursor"},
    {kGlobal, L"", L"g_bShiftToggle", kInt, L"0", L"editor", L"flips at each release of Shift"},
    {kGlobal, L"", L"g_nSpeedMenu", kInt, L"3", L"popup editor",
     L"right button: 0 the host's; 1 menu at each click; 2 with a selection or Ctrl; 3 with a "
     L"selection or a long press"},
    {kGlobal, L"", L"g_nRBtnMenuTime", kInt, L"250", L"editor", L"milliseconds of a long press"},
    {kGlobal, L"", L"g_bDblClkEditObj", kInt, L"1", L"editor",
     L"a double click on one object runs the object editor"},
    {kGlobal, L"", L"g_bEnableSelectPreview", kInt, L"1", L"editor",
     L"the selection preview is allowed"},
    {kGlobal, L"", L"g_bDefaultOpenFirst", kInt, L"0", L"screenmenu",
     L"the screen menu opens along its first lines"},
    {kGlobal, L"", L"g_bLimitHeight", kInt, L"0", L"screenmenu",
     L"only the open group of the screen menu scrolls"},
    {kGlobal, L"", L"g_bScrollBar", kInt, L"1", L"screenmenu",
     L"the screen menu has a visible scroll bar"},
    {kGlobal, L"", L"g_iMenuRowHeight", kInt, L"25", L"screenmenu",
     L"row height of the screen menu in pixels"},
    {kGlobal, L"", L"g_menuColors", kColor, L"0xF7F3EE 0xEFE4D8 0xE6D5C2 0xDCC6AC", L"screenmenu",
     L"background of the screen menu by depth"},
    {kGlobal, L"", L"g_bShowMenuTip", kInt, L"1", L"screenmenu",
     L"rows of the screen menu show their help as a tip"},
    {kGlobal, L"", L"g_iMenuType", kInt, L"0", L"frame",
     L"menu kind: 0 normal, 1 simple, 2 run mode"},
    {kGlobal, L"", L"g_nRunMode", kInt, L"0", L"frame screenmenu popup", L"run mode on"},
    {kGlobal, L"", L"g_hQvxDll", kHandle, L"", L"frame screenmenu popup",
     L"the menu's icon library"},
    {kGlobal, L"", L"g_iInPlaceFontHeight", kInt, L"16", L"editor",
     L"font height of the in-place editor in pixels"},
    {kGlobal, L"", L"g_colorInPlaceGround", kColor, L"0xE1FFFF", L"editor",
     L"background of the in-place editor"},
    {kGlobal, L"", L"g_colorInPlaceText", kColor, L"0x000000", L"editor",
     L"text of the in-place editor"},
    {kGlobal, L"", L"g_bMakeGroup", kInt, L"1", L"statusbar", L"grouping on"},
    {kGlobal, L"", L"g_bDynamicCoord", kInt, L"1", L"statusbar", L"dynamic dimensions on"},
    {kGlobal, L"", L"g_bDynInput", kInt, L"1", L"statusbar", L"dynamic input on"},
    {kGlobal, L"", L"g_iMaxDynDimNum", kInt, L"2", L"statusbar",
     L"dynamic input fields shown: 1, 2 or 10"},
    {kGlobal, L"", L"g_nDimAdjust", kInt, L"2", L"statusbar",
     L"adjusting of dimensions after a scale change: 0 not at all"},
    {kGlobal, L"", L"g_nProductId", kInt, L"1", L"frame screenmenu editor",
     L"which product of the family runs"},
    {kGlobal, L"", L"g_nVersion", kReal, QVX_VERSION_NUMBER, L"frame", L"product version"},
    {kGlobal, L"", L"g_dHostVersion", kReal, L"24", L"frame statusbar editor",
     L"the host's release number"},
    {kGlobal, L"", L"g_pCurrentDb", kHandle, L"", L"statusbar", L"database of the current drawing"},
    {kGlobal, L"", L"g_sAppPath", kText, L"", L"frame",
     L"the program folder, ending in a backslash"},
    {kGlobal, L"", L"g_pContextMenu", kHandle, L"", L"popup editor",
     L"the context window, for sibling modules"},

    {kVariable, L"", L"ACADVER", kText, L"24.0", L"kernel",
     L"read at start: the host's release number"},
    {kVariable, L"", L"CMDACTIVE", kInt, L"0", L"ground", L"read: what kind of command runs"},
    {kVariable, L"", L"CMDNAMES", kText, L"", L"ground", L"read: the commands that run"},
    {kVariable, L"", L"CVPORT", kInt, nullptr, L"popup editor statusbar",
     L"read: the current viewport"},
    {kVariable, L"", L"TILEMODE", kInt, nullptr, L"editor statusbar",
     L"read: model or paper space"},
    {kVariable, L"", L"GRIDMODE", kInt, nullptr, L"editor", L"read: the grid is shown"},
    {kVariable, L"", L"VIEWCTR", kPoint, nullptr, L"kernel",
     L"read: middle of the view, for zooming at the pointer"},
    {kVariable, L"", L"VIEWSIZE", kReal, nullptr, L"kernel",
     L"read: height of the view, for zooming at the pointer"},
    {kVariable, L"", L"SCREENSIZE", kPoint, nullptr, L"kernel editor",
     L"read: size of the view, for the aperture and for wrapping in the in-place editor"},
    {kVariable, L"", L"CPROFILE", kText, L"", L"frame", L"read: names the folder of Menu"},
    {kVariable, L"", L"SELECTIONPREVIEW", kInt, nullptr, L"editor",
     L"read: the host's own preview"},
    {kVariable, L"", L"CMDECHO", kInt, L"80", L"frame", L"0 while a LISP function runs"},
    {kVariable, L"", L"BLIPMODE", kInt, L"80", L"frame", L"0 while a LISP function runs"},
    {kVariable, L"", L"pickstyle", kInt, nullptr, L"statusbar", L"written: groups are picked"},
    {kVariable, L"", L"HPSCALE", kReal, nullptr, L"statusbar", L"written: hatch scale"},

    {kSymbol, L"", L"_qvxatoml", kNil, nullptr, L"frame", L"set to nil when a menu is loaded"},
    {kSymbol, L"", L"_prefix", kText, nullptr, L"frame", L"the result of TGetLispPath"},
    {kSymbol, L"", L"_prefix1", kText, nullptr, L"frame", L"the result of TGetLispPath"},
};

}  // namespace

const IndexRow* SettingsIndex(int* count) {
  *count = static_cast<int>(sizeof kRows / sizeof kRows[0]);
  return kRows;
}
