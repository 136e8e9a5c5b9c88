// Compares the mix of the generated menus with the product's.
#pragma once

#include <string>

// Markdown on standard output.
void PrintMixTable(const std::string& productMenu);
