// Prints the engine's messages as the host's command line shows them.
#pragma once

#include <ostream>

#include "menu/source_messages.h"
#include "tools/qmn/qmn_tool.h"
#include "tools/qmn/tool_text.h"

class HostMessages : public SourceMessages {
 public:
  explicit HostMessages(const QmnStreams& streams) : m_streams(streams) {}
  void ReportSyntaxError(const wchar_t* text, int line) override {
    ++m_count;
    const TWCString message = FormatSyntaxError(text, line);
    m_streams.err << Utf8({message, static_cast<size_t>(message.Length())});
  }
  int Count() const { return m_count; }

 private:
  const QmnStreams& m_streams;
  int m_count = 0;
};
