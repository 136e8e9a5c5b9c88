// Sequences in the texts of drawing objects, and where the parts of a text are drawn.
//
//   ^U...^U   superscript                 ^1 to ^4   signs of the steel grades
//   ^L...^L   subscript                   %%d        degree
//   ^C...^C   in a circle                 %%p        plus-minus
//   ^X...^X   small, at the upper corner  %%c        diameter
//                                         %%%        per cent
//
// ^ sequences do not nest. One that is not closed, and a ^ before any other character, is shown as
// it is. %% codes are read everywhere, their letter in either case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kernel/kernel_export.h"

enum class TextStyle { Plain, Superscript, Subscript, Circled, Corner, Steel };

struct TextRun {
  TextStyle style = TextStyle::Plain;
  std::wstring text;  // as shown; of a steel sign its grade, one digit

  bool operator==(const TextRun&) const = default;
};

// One line of text as runs; adjacent plain characters are one run, empty runs are left out.
QVX_KERNEL std::vector<TextRun> ParseTextSequences(std::wstring_view line);

// A part of a laid-out line. The origin is the lower left corner of the line.
struct TextPiece {
  enum class Kind { Text, Ring, Stroke } kind;
  double x = 0, y = 0;  // Text: lower left; Ring: the middle; Stroke: one end
  double size = 0;      // Text: its height; Ring: the radius
  double endX = 0, endY = 0;
  std::wstring text;
};

struct TextLayout {
  std::vector<TextPiece> pieces;
  double width = 0;
};

QVX_KERNEL TextLayout LayOutText(std::wstring_view line, double height);

// Breaks a line into parts that are not wider than `width` text heights, unless one character or
// sequence is; at the last blank before Latin text. The parts keep their sequences.
QVX_KERNEL std::vector<std::wstring> WrapTextLine(std::wstring_view line, double width);
