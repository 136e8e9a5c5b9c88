// The published function that runs a command from inside another: acedCommandS.
#include <cstdarg>
#include <cwchar>
#include <string>
#include <vector>

#include "aced.h"
#include "acedcmdnf.h"
#include "adslib.h"
#include "devhost/core/host/host.h"

// Arguments are pairs of a type and a value: the command's name, then its input. RTNONE ends them.
int acedCommandS(int type, ...) {
  va_list args;
  va_start(args, type);
  std::vector<std::wstring> words;
  while (type != RTNONE && type != 0) {
    wchar_t number[40];
    if (type == RTSTR) {
      const ACHAR* text = va_arg(args, const ACHAR*);
      words.emplace_back(text ? text : L"");
    } else if (type == RTSHORT || type == RTLONG) {
      words.push_back(std::to_wstring(va_arg(args, int)));
    } else if (type == RTREAL) {
      std::swprintf(number, 40, L"%.16g", va_arg(args, double));
      words.emplace_back(number);
    } else {
      break;
    }
    type = va_arg(args, int);
  }
  va_end(args);
  if (words.empty()) return RTERROR;
  const std::wstring name = words[0];
  words.erase(words.begin());
  return devhost::TheHost().engine.RunNested(name, words) ? RTNORM : RTERROR;
}
