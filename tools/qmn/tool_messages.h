// Output of the engine's messages: in the tool's form with file and line, or in the host's.
#pragma once

#include <ostream>
#include <string>

#include "menu/source_messages.h"
#include "tools/qmn/qmn_tool.h"
#include "tools/qmn/tool_text.h"

class ToolMessages : public SourceMessages {
 public:
  ToolMessages(std::string file, const QmnStreams& streams)
      : m_file(std::move(file)), m_streams(streams) {}
  void ReportSyntaxError(const wchar_t* text, int line) override {
    ++m_count;
    // Some of the engine's texts begin with a newline, for the host's command line.
    while (*text == L'\n' || *text == L' ') ++text;
    ReportError(m_streams, m_file + ":" + std::to_string(line), Utf8(text));
  }
  int Count() const { return m_count; }

 private:
  std::string m_file;
  const QmnStreams& m_streams;
  int m_count = 0;
};

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
