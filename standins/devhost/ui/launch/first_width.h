// The first width of the product's palette, as an installer writes it: wide enough for every label
// of the product's menu. The module's own default is narrower, for menus with short labels.
#pragma once

#include <string>
#include <vector>

namespace devhost {

struct LaunchOptions;

// The labels of the rows of a menu source: of its block SCREEN and of its switches. An accelerator
// after a tab is part of its label, at a distance.
std::vector<std::wstring> PaletteLabels(const std::wstring& source);

// In pixels, for the menu of a product folder in the system's menu font; 0 without a menu source.
int FirstPaletteWidth(const std::wstring& productFolder);

// Stores the width for the release of the options, unless the registry has one.
void StoreFirstPaletteWidth(const LaunchOptions& options);

}  // namespace devhost
