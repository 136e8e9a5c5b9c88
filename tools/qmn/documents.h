// Documents that are part of the program. CMake fills in their text.
#pragma once

extern const char kMenuChecksDocument[];         // docs/menu-checks.md
extern const char kMenuChecksChineseDocument[];  // docs/menu-checks.zh.md
