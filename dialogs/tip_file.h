// The tip file read as lines: forwards with wrap-around, backwards by a scan from its start. A line
// is one tip unless it begins with a tab, a line end, a blank or a semicolon. No settings and no
// windows; tip_of_the_day.h keeps the position between two runs.
#pragma once

#include <cstdio>

#include "afx.h"
#include "kernel/native_file.h"

namespace qvx {

constexpr int kTipUnits = 2000;  // size of the line buffer, with terminator

FileOwner OpenTipFile(const wchar_t* path);  // opened as the functions below need it

// Reads one line with its line end, at most kTipUnits - 1 characters; the next call returns the
// rest of a longer line. The file is narrow text in the ANSI code page. False at the end.
bool ReadTipLine(std::FILE* file, CString& line);

bool IsTipLine(const wchar_t* line);

enum class TipFound {
  kYes,
  kSeekFailed,
  kNoTip,  // the whole file has no tip; the text is then empty
};

// Reads the next tip from the current position, from the start again after the last one.
TipFound ReadNextTip(std::FILE* file, CString& tip);

// Finds the offset of the tip before the one that ends at `end`; 0 for the first tip and for an
// `end` at which no tip ends. Changes the file position. False if that fails.
bool FindTipBefore(std::FILE* file, int end, int& offset);

bool SeekTip(std::FILE* file, int offset);

// Time of the last change, as "Sat Nov 21 13:50:28 2026" in local time; empty if unknown.
CString TipFileStamp(std::FILE* file);

}  // namespace qvx
