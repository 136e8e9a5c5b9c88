// The result and type codes are in adsdef.h, with their types.
#pragma once
#include "adsdef.h"
