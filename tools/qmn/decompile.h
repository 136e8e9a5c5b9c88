// A compiled menu file back into source, for the command and for those who test the way round.
#pragma once

#include <string>

#include "tools/qmn/decompile_source.h"

// `system` is what was loaded from `bytes`. Empty when there is a refusal, else a source with CR LF
// that compiles to exactly these bytes.
std::string Decompile(const std::string& bytes, TMenuSystem& system, unsigned page,
                      Refusals& refusals);
