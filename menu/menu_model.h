// The whole menu model for those who read menus: screen menu, pop-ups, tools.
#pragma once

#include "menu/menu_system.h"
