// Everything of the settings index as it stands now, for a person who wonders why the product
// behaves as it does: value, where it comes from, default, effect; the files that go with it; and
// what the next start makes of the first-start list. Reads only. Called by the module's diagnostic
// export.
#pragma once

#include <string>

// UTF-8 lines; the same for the same settings.
std::string SettingsReport();
