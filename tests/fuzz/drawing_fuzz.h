// One iteration with arbitrary drawing bytes, for the libFuzzer program and for the fixed runs.
#pragma once

#include <string>
#include <string_view>

// Reads, draws, writes and reads again. Returns the errors of the second reading, empty for none.
std::wstring FuzzDrawing(std::string_view bytes);
