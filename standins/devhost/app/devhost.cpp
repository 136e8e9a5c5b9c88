// The development host's program: reads the command line and runs the host library, which modules
// share. Exit codes: that of the play script, 0 without one, 2 for wrong usage, 3 when the doctor
// finds no product.
#include <cstdio>
#include <string>
#include <vector>

#include "devhost/core/base/utf8.h"
#include "devhost/ui/launch/doctor.h"
#include "devhost/ui/launch/launch.h"

int wmain(int count, wchar_t** words) {
  devhost::LaunchOptions options;
  std::wstring error;
  const std::vector<std::wstring> rest(words + 1, words + count);
  if (!devhost::ParseLaunchOptions(rest, &options, &error)) {
    std::fprintf(stderr, "devhost: %s\n%s", devhost::Utf8(error).c_str(),
                 devhost::Utf8(devhost::LaunchUsage()).c_str());
    return 2;
  }
  if (options.help) {
    std::printf("%s", devhost::Utf8(devhost::LaunchUsage()).c_str());
    return 0;
  }
  if (options.doctor) return devhost::RunDoctor(options);
  return devhost::RunDevelopmentHost(options);
}
