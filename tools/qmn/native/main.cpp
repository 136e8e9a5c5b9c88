// The entry point on a system whose arguments and terminals are UTF-8.
#include <unistd.h>

#include <cstdlib>

#include "tools/qmn/tool_process.h"

namespace {

// The first of these that is set decides, as for all programs of the system.
Language LanguageOfUser() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const char* value = std::getenv(name); value && *value) return LanguageOfLocale(value);
  return Language::kEnglish;
}

}  // namespace

int main(int count, char** texts) {
  return RunProcess(std::vector<std::string>(texts + 1, texts + count),
                    {isatty(STDERR_FILENO) != 0, isatty(STDOUT_FILENO) != 0}, LanguageOfUser());
}
