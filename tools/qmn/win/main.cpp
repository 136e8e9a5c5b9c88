// The entry point on Windows: UTF-16 arguments, binary standard streams, a
// console that shows UTF-8.
#include <fcntl.h>
#include <io.h>
#include "afx.h"

#include "tools/qmn/tool_process.h"
#include "tools/qmn/tool_text.h"

namespace {

// Sets the console to UTF-8 while the program runs and restores its code page afterwards.
class ConsolePage {
 public:
  ConsolePage() { SetConsoleOutputCP(CP_UTF8); }
  ~ConsolePage() { SetConsoleOutputCP(m_before); }
  ConsolePage(const ConsolePage&) = delete;
  ConsolePage& operator=(const ConsolePage&) = delete;

 private:
  const UINT m_before = GetConsoleOutputCP();
};

// True when the stream is a console that supports colour sequences.
bool IsOnTerminal(DWORD stream) {
  HANDLE console = GetStdHandle(stream);
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

Language LanguageOfUser() {
  const bool isChinese = PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_CHINESE;
  return isChinese ? Language::kChinese : Language::kEnglish;
}

}  // namespace

int wmain(int count, wchar_t** texts) {
  for (int stream = 0; stream < 3; ++stream) _setmode(stream, _O_BINARY);
  const ConsolePage page;
  std::vector<std::string> args;
  for (int i = 1; i < count; ++i) args.push_back(Utf8(texts[i]));
  return RunProcess(args, {IsOnTerminal(STD_ERROR_HANDLE), IsOnTerminal(STD_OUTPUT_HANDLE)},
                    LanguageOfUser());
}
