// The result and type codes stand with the types that they describe.
#pragma once
#include "adsdef.h"
