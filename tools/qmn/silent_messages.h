// For trial compilations: counts the engine's messages and prints none.
#pragma once

#include "menu/source_messages.h"

class SilentMessages : public SourceMessages {
 public:
  void ReportSyntaxError(const wchar_t*, int) override { ++m_count; }
  int Count() const { return m_count; }

 private:
  int m_count = 0;
};
