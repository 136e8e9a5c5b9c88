// The remembered menu: the value "Menu" of the host's current profile, a path without
// extension or a bare name.
#pragma once

#include "kernel/twcstring.h"

TWCString MenuSettingFolder();           // the profile's name, "Settings" without one
bool LoadMenuSetting(TWCString& value);  // false, value unchanged: not set
void SaveMenuSetting(const wchar_t* base);
