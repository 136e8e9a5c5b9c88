// Numbers of the module's own resources, shared by qvx_initstart.rc and the code that loads them.
#pragma once

#define IDB_ARROW_FOLDED_0 5012  // header rows of the screen menu, by depth modulo 3
#define IDB_ARROW_FOLDED_1 5015
#define IDB_ARROW_FOLDED_2 5016
#define IDB_ARROW_OPEN_0 199
#define IDB_ARROW_OPEN_1 5018
#define IDB_ARROW_OPEN_2 5019
#define IDB_CHECK 5013  // stands for the icon of a checked row
