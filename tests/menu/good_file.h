// A small compiled file with something of everything in it, for tests that damage it.
#pragma once

#include <string>

std::string GoodFile();
