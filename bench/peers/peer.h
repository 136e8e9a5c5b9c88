// Entry points for the benchmarks: source to model, model to compiled file, compiled file to model.
#pragma once

#include <cstddef>
#include <string>

#include "bench/peers/peer_model.h"

namespace peer {

size_t Scan(const std::string& source);               // flex alone: the number of tokens
bool Parse(const std::string& source, Menu& menu);    // without the passes; false: syntax error
bool Compile(const std::string& source, Menu& menu);  // with them

void RunPasses(Menu& menu);

std::string Write(const Menu& menu);
bool Save(const Menu& menu, const std::string& path);
bool Load(const std::string& path, Menu& menu);

}  // namespace peer
