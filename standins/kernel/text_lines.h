// Line breaks of texts: LF in an object, CR LF in an edit control, \P in a drawing file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kernel/kernel_export.h"

// Any of CR LF, CR and LF is a break. A text that has one line gets a blank for each.
QVX_KERNEL std::wstring TextToStore(std::wstring_view typed, bool multiLine);
QVX_KERNEL std::wstring TextToEdit(std::wstring_view stored);

// A break is written as \P and a backslash as two, so that a group of a file is one line.
QVX_KERNEL std::wstring TextToFile(std::wstring_view stored);
QVX_KERNEL std::wstring TextFromFile(std::wstring_view written);

std::vector<std::wstring> LinesOf(std::wstring_view stored);
