// The table that sets the generated menus beside the product's.
#pragma once

#include <string>

// Markdown on standard output.
void PrintMixTable(const std::string& productMenu);
