// Converts a compiled menu file to source. Used by the command and by round trip tests.
#pragma once

#include <string>

#include "tools/qmn/decompile_source.h"

// `system` is the model loaded from `bytes`. Returns a source with CR LF that compiles to exactly
// these bytes, or an empty string when there is a refusal.
std::string Decompile(const std::string& bytes, TMenuSystem& system, unsigned page,
                      Refusals& refusals);
