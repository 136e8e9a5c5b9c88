// What a start would find, without one: the host's own part (release, code page, support path) and
// the report of settings that the product's module exports. Nothing is written and no window opens:
// the kernel is started, since it reads its settings then, the module is only mapped.
#pragma once

#include "devhost/ui/launch/launch_options.h"

namespace devhost {

// UTF-8 to standard output. 0, or 3 when the module can't be mapped or has no report.
int RunDoctor(const LaunchOptions& options);

}  // namespace devhost
