// For trying a source out: the engine's complaints are counted and shown to nobody.
#pragma once

#include "menu/source_messages.h"

class SilentMessages : public SourceMessages {
 public:
  void ReportSyntaxError(const wchar_t*, int) override { ++m_count; }
  int Count() const { return m_count; }

 private:
  int m_count = 0;
};
