// The entry point on a system whose arguments and terminals are UTF-8.
#include <unistd.h>

#include "tools/qmn/tool_process.h"

int main(int count, char** texts) {
  return RunProcess(std::vector<std::string>(texts + 1, texts + count),
                    {isatty(STDERR_FILENO) != 0, isatty(STDOUT_FILENO) != 0});
}
