// One round with hostile drawing bytes, for the libFuzzer program and for the fixed runs.
#pragma once

#include <string>
#include <string_view>

// Reads, draws, writes and reads again. What is wrong with the second reading, empty when nothing
// is.
std::wstring FuzzDrawing(std::string_view bytes);
