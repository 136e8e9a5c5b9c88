// Identifiers shared by resource scripts and code: control bars, dock bars, the frame's standard
// commands and strings. Preprocessor definitions only, for the resource compiler.
#ifndef AFXRES_H_INCLUDED
#define AFXRES_H_INCLUDED

#ifdef RC_INVOKED
#include <winres.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

/* Windows of a frame. */
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_CONTROLBAR_LAST 0xE8FF
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
// String of the library: a text that must be a number is none.
#define AFX_IDP_PARSE_REAL 0xF112
#define AFX_IDW_DOCKBAR_TOP 0xE81B
#define AFX_IDW_DOCKBAR_LEFT 0xE81C
#define AFX_IDW_DOCKBAR_RIGHT 0xE81D
#define AFX_IDW_DOCKBAR_BOTTOM 0xE81E
#define AFX_IDW_DOCKBAR_FLOAT 0xE81F
#define AFX_IDW_PANE_FIRST 0xE900
#define AFX_IDW_PANE_LAST 0xE9FF

/* First child window of the MDI client; one number a child. */
#define AFX_IDM_FIRST_MDICHILD 0xFF00

/* Strings of the frame's message line. */
#define AFX_IDS_APP_TITLE 0xE000
#define AFX_IDS_IDLEMESSAGE 0xE001
#define ID_SEPARATOR 0

/* Standard commands. */
#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_WINDOW_NEW 0xE130
#define ID_WINDOW_ARRANGE 0xE131
#define ID_WINDOW_CASCADE 0xE132
#define ID_WINDOW_TILE_HORZ 0xE133
#define ID_WINDOW_TILE_VERT 0xE134
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_VIEW_TOOLBAR 0xE800
#define ID_VIEW_STATUS_BAR 0xE801

#endif
