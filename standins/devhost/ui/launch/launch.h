// Runs the development host: creates frame, drawings and modules, runs the message loop, destroys
// everything in reverse order.
#pragma once

#include "devhost/core/host/host.h"
#include "devhost/ui/launch/launch_options.h"

namespace devhost {

std::wstring ProgramFolder();  // without trailing backslash
HostOptions OptionsForCore(const LaunchOptions& options);
extern const wchar_t kProductModule[];

int RunDevelopmentHost(const LaunchOptions& options);

}  // namespace devhost
