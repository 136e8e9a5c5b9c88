// The life of the development host from the options to the exit code: frame, drawings, modules, the
// message loop, and everything down again in the opposite order.
#pragma once

#include "devhost/core/host/host.h"
#include "devhost/ui/launch/launch_options.h"

namespace devhost {

std::wstring ProgramFolder();  // of the development host, without a last backslash
HostOptions OptionsForCore(const LaunchOptions& options);
extern const wchar_t kProductModule[];

int RunDevelopmentHost(const LaunchOptions& options);

}  // namespace devhost
