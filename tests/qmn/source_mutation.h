// Menu sources for seeded random tests: the product's and the engine's golden ones, and mutations
// of them, many of which still compile.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "tools/qmn/silent_messages.h"

std::vector<std::string> SeedSources();
std::string MutatedSource(const std::vector<std::string>& seeds, std::mt19937& random);
