#pragma once

#define IDD_CHARS 100
#define IDD_WORDS 101
#define IDC_GROUPS 1001
#define IDC_ENTRIES 1002
#define IDC_LARGE 1003
#define IDC_WORD 1004
#define IDC_ADD 1005
