// The life of the development host from the options to the exit code: frame, drawings, modules, the
// message loop, and everything down again in the opposite order.
#pragma once

#include "launch_options.h"

namespace devhost {

int RunDevelopmentHost(const LaunchOptions& options);

}  // namespace devhost
