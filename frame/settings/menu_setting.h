// The remembered menu: the value "Menu" of the host profile that is current, a path without
// extension or a bare name.
#pragma once

#include "kernel/twcstring.h"

TWCString MenuSettingFolder();           // the profile's name, "Settings" without one
bool LoadMenuSetting(TWCString& value);  // false and untouched when there is none
void SaveMenuSetting(const wchar_t* base);
