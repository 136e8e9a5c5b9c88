// Prints the host's options (release, code page, support path) and the settings report that the
// product's module exports. Nothing is written and no window opens. The kernel module is started,
// which reads the settings; the product's module is only mapped.
#pragma once

#include "devhost/ui/launch/launch_options.h"

namespace devhost {

// Prints UTF-8 to standard output. Returns 0, or 3 if the module cannot be mapped or has no report.
int RunDoctor(const LaunchOptions& options);

}  // namespace devhost
