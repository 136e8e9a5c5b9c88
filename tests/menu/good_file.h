// A small compiled file with every kind of element, for tests that damage it.
#pragma once

#include <string>

std::string GoodFile();
