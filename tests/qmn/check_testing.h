// Sources for the tests of `qmn check`, and the results of the check and the engine for them.
#pragma once

#include <set>
#include <string>

#include "tests/qmn/qmn_testing.h"
#include "tools/qmn/check/check_settings.h"
#include "tools/qmn/code_page.h"

// Text of the code page from UTF-8; ‹41› gives the byte 0x41, ‹3×ab› gives ababab, and ‹no newline›
// at the end removes the last newline.
std::string MenuBytes(const std::string& utf8);

// A complete source around one part of it, named as in docs/menu-checks.md: lines, blocks,
// switches, icons; "file" adds nothing.
std::string Framed(const std::string& part, const std::string& text);

// Ignores unused icons and switches, since most examples leave the icon of the frame unused.
CheckSettings ExampleSettings();
std::set<std::string> CodesOf(const std::string& source,
                              const CheckSettings& settings = ExampleSettings(),
                              unsigned page = kUsualPage);
// True when the engine accepts the source without a message.
bool EngineTakes(const std::string& source);
