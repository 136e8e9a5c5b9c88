// Numbers of the module's own resources, shared by qvx_initstart.rc and the code that loads them.
#pragma once

#define IDB_ARROW_FOLDED_0 5012  // header rows of the screen menu, by depth modulo 3
#define IDB_ARROW_FOLDED_1 5015
#define IDB_ARROW_FOLDED_2 5016
#define IDB_ARROW_OPEN_0 199
#define IDB_ARROW_OPEN_1 5018
#define IDB_ARROW_OPEN_2 5019
#define IDB_CHECK 5013  // stands for the icon of a checked row

// Dialogs, their controls and texts. A picture of the tip dialog is drawn in four sizes; the code
// adds the step to the number of the first.
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
