// Reports the current value, source, default and effect of every setting of the index, the related
// files, and the effect of the first-start list at the next start. For support. Reads only. Called
// by the module's diagnostic export.
#pragma once

#include <string>

// UTF-8 lines; depends on the settings only.
std::string SettingsReport();
