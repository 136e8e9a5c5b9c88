// The host's own dialogs over those of adui.h. Windows only.
#pragma once

#include "acuidialog.h"
#include "adui.h"
