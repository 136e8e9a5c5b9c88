// Includes the whole menu model.
#pragma once

#include "menu/menu_system.h"
