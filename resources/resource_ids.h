// Numbers of the module's own resources, shared by qvx_initstart.rc and the code that loads them.
#pragma once

#define IDB_ARROW_FOLDED_0 5012  // header rows of the screen menu, by depth modulo 3
#define IDB_ARROW_FOLDED_1 5015
#define IDB_ARROW_FOLDED_2 5016
#define IDB_ARROW_OPEN_0 199
#define IDB_ARROW_OPEN_1 5018
#define IDB_ARROW_OPEN_2 5019
#define IDB_CHECK 5013  // replaces the icon of a checked row

#define IDC_EDIT_CURSOR 1480  // over the in-place editor

// Dialogs, their controls and texts. A picture of the tip dialog exists in four sizes; the code
// adds the step to the first number.
#define IDD_DAY_TIP 130
#define IDC_TIP_LEFT 1000
#define IDC_TIP_AT_START 1001
#define IDC_TIP_NEXT 1002
#define IDC_TIP_PREVIOUS 1003
#define IDC_TIP_TEXT 1004
#define IDC_TIP_TOP 1098
#define IDB_TIP_LEFT_100 5020
#define IDB_TIP_LEFT_125 35120
#define IDB_TIP_LEFT_150 35220
#define IDB_TIP_LEFT_200 35320
#define IDB_TIP_TOP_100 129
#define IDB_TIP_TOP_125 30229
#define IDB_TIP_TOP_150 30329
#define IDB_TIP_TOP_200 30429
#define IDS_NO_TIP_FILE 40009
#define IDS_TIP_FILE_ERROR 40010

#define IDD_ABOUT 131
#define IDC_ABOUT_SUBVERSION 1152
#define IDC_ABOUT_GROUP 1153
#define IDC_ABOUT_ICON 1154
#define IDC_ABOUT_MAIL 5016
#define IDC_ABOUT_WEB 5018
#define IDC_ABOUT_NAME 5020
#define IDC_ABOUT_VERSION 5076

// Status bar panes: icons by state, right-button menus, the scale menu, two dialogs.
#define IDI_PANE_GROUP_OFF 57627
#define IDI_PANE_GROUP_ON 57628
#define IDI_PANE_DYN_DIM_OFF 57629
#define IDI_PANE_DYN_DIM_ON 57630
#define IDI_PANE_BASE_OFF 57631
#define IDI_PANE_BASE_ON 57632
#define IDI_PANE_BOLD_OFF 57633
#define IDI_PANE_BOLD_ON 57634
#define IDI_PANE_FILL_OFF 57635
#define IDI_PANE_FILL_ON 57636

#define IDR_PANE_OFF 217
#define IDR_PANE_ON 218
#define IDR_PANE_OFF_ONLY 246  // without a line for settings
#define IDR_PANE_ON_ONLY 247
#define ID_PANE_OPEN 40215
#define ID_PANE_CLOSE 40216
#define ID_PANE_SETTINGS 40217

#define IDR_SCALE 221
#define ID_SCALE_5 40218
#define ID_SCALE_10 40219
#define ID_SCALE_20 40220
#define ID_SCALE_25 40221
#define ID_SCALE_30 40222
#define ID_SCALE_50 40223
#define ID_SCALE_100 40224
#define ID_SCALE_150 40225
#define ID_SCALE_200 40226
#define ID_SCALE_250 40227
#define ID_SCALE_500 40228
#define ID_SCALE_1000 40229
#define ID_SCALE_300 40230
#define ID_SCALE_OTHER 40231
#define ID_SCALE_1 40232
#define ID_SCALE_2 40233
#define ID_SCALE_0_5 40234

#define IDD_SCALE 218
#define IDC_SCALE 1175
#define IDD_DYN_INPUT 211
#define IDC_DYN_FIELDS 1172  // first of three
#define IDC_DYN_FIELDS_TWO 1173
#define IDC_DYN_FIELDS_ALL 1174
