// Records the calls of the frame's sequences and menu commands in a diary. Linked instead of
// the rooms, the host and the kernel's own start and save functions; each entry is one call
// with its arguments.
#pragma once

#include <set>
#include <string>
#include <vector>

struct FrameSteps {
  std::vector<std::wstring> diary;
  // On the support path; found under C:\s\ unless a path is given.
  std::set<std::wstring> files;
  std::wstring base;         // of the menu; empty: none is found
  std::wstring menuSetting;  // the remembered menu; empty: none
  bool screenMenuHasWindow = false;
};

FrameSteps& TheFrameSteps();  // one for the program; tests reset it by assigning a new one
