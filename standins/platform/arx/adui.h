// The host's user interface classes: palettes and dialogs. Windows only.
#pragma once

#include "aduidialog.h"
#include "aduidock.h"
#include "aduipaletteset.h"
