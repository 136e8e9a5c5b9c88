// The process around RunQmn: UTF-8 arguments, binary standard streams, a terminal that shows UTF-8,
// and colour where it can be seen.
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "tools/qmn/qmn_tool.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "tools/qmn/tool_text.h"
#else
#include <unistd.h>
#endif

namespace {

bool WantsColour() {
  const char* no = std::getenv("NO_COLOR");
  return !no || !*no;
}

int Run(const std::vector<std::string>& args, bool terminal, bool terminalOut) {
  std::ios::sync_with_stdio(false);
  const bool wanted = WantsColour();
  const int code =
      RunQmn(args, {std::cin, std::cout, std::cerr, terminal && wanted, terminalOut && wanted});
  std::cout.flush();
  return std::cout.good() || code != kFine ? code : kFileTrouble;
}

}  // namespace

#ifdef _WIN32

namespace {

// A console of another page shows UTF-8 while the program runs, and is given back as it was.
class ConsolePage {
 public:
  ConsolePage() { SetConsoleOutputCP(CP_UTF8); }
  ~ConsolePage() { SetConsoleOutputCP(m_before); }
  ConsolePage(const ConsolePage&) = delete;
  ConsolePage& operator=(const ConsolePage&) = delete;

 private:
  const UINT m_before = GetConsoleOutputCP();
};

// Whether a stream goes to a console that understands colour sequences.
bool IsOnTerminal(DWORD stream) {
  HANDLE console = GetStdHandle(stream);
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace

int wmain(int count, wchar_t** texts) {
  for (int stream = 0; stream < 3; ++stream) _setmode(stream, _O_BINARY);
  const ConsolePage page;
  std::vector<std::string> args;
  for (int i = 1; i < count; ++i) args.push_back(Utf8(texts[i]));
  return Run(args, IsOnTerminal(STD_ERROR_HANDLE), IsOnTerminal(STD_OUTPUT_HANDLE));
}

#else

int main(int count, char** texts) {
  return Run(std::vector<std::string>(texts + 1, texts + count), isatty(STDERR_FILENO) != 0,
             isatty(STDOUT_FILENO) != 0);
}

#endif
