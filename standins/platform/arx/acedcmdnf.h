// Commands run from within another.
#pragma once

#include "adsdef.h"

int acedCommandS(int type, ...);  // pairs of type and value, RTNONE at the end
