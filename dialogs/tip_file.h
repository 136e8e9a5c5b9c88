// The tip file read as lines, forwards in a circle and backwards by a walk from its start. A line
// is one tip unless it begins with a tab, a line end, a blank or a semicolon. Nothing here knows
// settings or windows; tip_of_the_day.h keeps the position between two runs.
#pragma once

#include <cstdio>

#include "afx.h"
#include "kernel/native_file.h"

namespace qvx {

constexpr int kTipUnits = 2000;  // of the line buffer, its terminator among them

FileOwner OpenTipFile(const wchar_t* path);  // for the functions below

// One line with its line end, at most kTipUnits - 1 characters of it: the rest of a longer line is
// what the next call gives. The file is narrow text in the ANSI code page. False at the end.
bool ReadTipLine(std::FILE* file, CString& line);

bool IsTipLine(const wchar_t* line);

enum class TipFound {
  kYes,
  kSeekFailed,
  kNoTip,  // the whole file was looked through; the text is then empty
};

// The next tip from where the file stands, from the start again after the last one.
TipFound ReadNextTip(std::FILE* file, CString& tip);

// Where the tip before the one that ends at `end` begins; 0 for the first tip, which has none
// before it, and for an `end` at which no tip ends. Moves the file. False when it can't be moved.
bool FindTipBefore(std::FILE* file, int end, int& offset);

bool SeekTip(std::FILE* file, int offset);

// When the file was last changed, as "Sat Nov 21 13:50:28 2026" in local time; empty if unknown.
CString TipFileStamp(std::FILE* file);

}  // namespace qvx
