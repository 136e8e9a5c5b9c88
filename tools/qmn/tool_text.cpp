#include "tools/qmn/tool_text.h"

#include <ostream>

#include "afxstr.h"

namespace {
constexpr unsigned kUtf8Page = 65001;
}

std::wstring Wide(std::string_view utf8) { return AnsiToWide(utf8, kUtf8Page); }

void ReportError(const QmnStreams& streams, const std::string& where, const Message& text) {
  const std::string word = Message("error"_say).In(streams.language) + ":";
  streams.err << where << ": " << (streams.colour ? "\x1b[1;31m" + word + "\x1b[0m" : word) << " "
              << text.In(streams.language) << "\n";
}
