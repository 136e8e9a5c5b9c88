// Menu sources for seeded random tests: the product's and the engine's golden ones, and mutations
// of them of which a good part still compiles.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "menu/source_messages.h"

class SilentMessages : public SourceMessages {
 public:
  void ReportSyntaxError(const wchar_t*, int) override { ++m_count; }
  int Count() const { return m_count; }

 private:
  int m_count = 0;
};

std::vector<std::string> SeedSources();
std::string MutatedSource(const std::vector<std::string>& seeds, std::mt19937& random);
