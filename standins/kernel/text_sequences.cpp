#include "kernel/text_sequences.h"

#include <algorithm>

namespace {

constexpr wchar_t kFirstWide = 0x2E80;  // ideographs are as wide as high
constexpr double kWide = 1, kNarrow = 0.6;

// Parts of the text height.
constexpr double kScriptSize = 0.6, kSuperscriptRise = 0.55, kSubscriptDrop = 0.15;
constexpr double kCornerSize = 0.45;
constexpr double kCircledSize = 0.65, kRingRadius = 0.6, kRingMargin = 0.15;
constexpr double kSteelWidth = 0.8, kSteelRadius = 0.35, kSteelBar = 0.3;

double WidthOf(wchar_t c) { return c >= kFirstWide ? kWide : kNarrow; }

double WidthOf(std::wstring_view text) {
  double width = 0;
  for (const wchar_t c : text) width += WidthOf(c);
  return width;
}

// The sign of a code %%c at the start of the text; 0: none is there.
wchar_t SignAt(std::wstring_view text) {
  if (text.size() < 3 || text[0] != L'%' || text[1] != L'%') return 0;
  switch (text[2]) {
    case L'd':
    case L'D':
      return L'°';
    case L'p':
    case L'P':
      return L'±';
    case L'c':
    case L'C':
      return L'Φ';
    case L'%':
      return L'%';
    default:
      return 0;
  }
}

std::wstring WithSigns(std::wstring_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t sign = SignAt(text.substr(i));
    out += sign ? sign : text[i];
    if (sign) i += 2;
  }
  return out;
}

TextStyle StyleOf(wchar_t letter) {
  switch (letter) {
    case L'U':
      return TextStyle::Superscript;
    case L'L':
      return TextStyle::Subscript;
    case L'C':
      return TextStyle::Circled;
    case L'X':
      return TextStyle::Corner;
    default:
      return TextStyle::Plain;
  }
}

// A character, code or sequence, and how many characters of the source it takes.
struct Unit {
  TextRun run;
  std::size_t length;
};

Unit FirstUnit(std::wstring_view text) {
  if (const wchar_t sign = SignAt(text)) return {{TextStyle::Plain, std::wstring(1, sign)}, 3};
  if (text[0] == L'^' && text.size() > 1) {
    if (text[1] >= L'1' && text[1] <= L'4')
      return {{TextStyle::Steel, std::wstring(1, text[1])}, 2};
    const TextStyle style = StyleOf(text[1]);
    const std::size_t end = style == TextStyle::Plain ? text.npos : text.find(text.substr(0, 2), 2);
    if (end != text.npos) return {{style, WithSigns(text.substr(2, end - 2))}, end + 2};
  }
  return {{TextStyle::Plain, std::wstring(1, text[0])}, 1};
}

double CircleRadius(const TextRun& run) {
  return std::max(kRingRadius, WidthOf(run.text) * kCircledSize / 2 + kRingMargin);
}

double WidthOf(const TextRun& run) {
  switch (run.style) {
    case TextStyle::Superscript:
    case TextStyle::Subscript:
      return WidthOf(run.text) * kScriptSize;
    case TextStyle::Corner:
      return WidthOf(run.text) * kCornerSize;
    case TextStyle::Circled:
      return 2 * CircleRadius(run);
    case TextStyle::Steel:
      return kSteelWidth;
    default:
      return WidthOf(run.text);
  }
}

void AddCircled(TextLayout& out, const TextRun& run, double height) {
  const double radius = CircleRadius(run), size = kCircledSize,
               left = radius - WidthOf(run.text) * size / 2;
  out.pieces.push_back(
      {TextPiece::Kind::Ring, out.width + radius * height, height / 2, radius * height, 0, 0, {}});
  out.pieces.push_back({TextPiece::Kind::Text, out.width + left * height, (1 - size) / 2 * height,
                        size * height, 0, 0, run.text});
}

// A ring with a stroke through it; each grade above the first has one more bar: at the foot, at the
// head, in the middle.
void AddSteel(TextLayout& out, const TextRun& run, double height) {
  const double x = out.width + kSteelWidth / 2 * height;
  const auto stroke = [&](double x0, double y0, double x1, double y1) {
    out.pieces.push_back({TextPiece::Kind::Stroke, x0, y0, 0, x1, y1, {}});
  };
  out.pieces.push_back({TextPiece::Kind::Ring, x, height / 2, kSteelRadius * height, 0, 0, {}});
  stroke(x, 0, x, height);
  const double bars[] = {0, height, height / 2};
  for (int i = 0; i < run.text[0] - L'1'; ++i)
    stroke(x - kSteelBar * height, bars[i], x + kSteelBar * height, bars[i]);
}

void Add(TextLayout& out, const TextRun& run, double height) {
  const auto text = [&](double size, double y) {
    out.pieces.push_back(
        {TextPiece::Kind::Text, out.width, y * height, size * height, 0, 0, run.text});
  };
  switch (run.style) {
    case TextStyle::Superscript:
      text(kScriptSize, kSuperscriptRise);
      break;
    case TextStyle::Subscript:
      text(kScriptSize, -kSubscriptDrop);
      break;
    case TextStyle::Corner:
      text(kCornerSize, 1 - kCornerSize);
      break;
    case TextStyle::Circled:
      AddCircled(out, run, height);
      break;
    case TextStyle::Steel:
      AddSteel(out, run, height);
      break;
    default:
      text(1, 0);
  }
  out.width += WidthOf(run) * height;
}

}  // namespace

std::vector<TextRun> ParseTextSequences(std::wstring_view line) {
  std::vector<TextRun> runs;
  while (!line.empty()) {
    Unit unit = FirstUnit(line);
    line.remove_prefix(unit.length);
    if (unit.run.text.empty()) continue;
    const bool joins = unit.run.style == TextStyle::Plain && !runs.empty() &&
                       runs.back().style == TextStyle::Plain;
    if (joins)
      runs.back().text += unit.run.text;
    else
      runs.push_back(std::move(unit.run));
  }
  return runs;
}

TextLayout LayOutText(std::wstring_view line, double height) {
  TextLayout out;
  for (const TextRun& run : ParseTextSequences(line)) Add(out, run, height);
  return out;
}

std::vector<std::wstring> WrapTextLine(std::wstring_view line, double width) {
  if (!(width > 0)) return {std::wstring(line)};
  std::vector<std::wstring> parts;
  std::size_t first = 0, blank = line.npos;  // of the open part; its last blank
  double length = 0, afterBlank = 0;         // of the open part; of what follows the blank
  for (std::size_t at = 0; at < line.size();) {
    const Unit unit = FirstUnit(line.substr(at));
    const double wide = WidthOf(unit.run);
    if (length + wide > width && at > first) {
      const bool atBlank = blank != line.npos && line[at] < kFirstWide && line[at] != L' ';
      parts.emplace_back(line.substr(first, (atBlank ? blank : at) - first));
      first = atBlank ? blank + 1 : at;
      length = atBlank ? afterBlank : 0;
      blank = line.npos;
    }
    length += wide;
    afterBlank += wide;
    if (line[at] == L' ' && at > first) blank = at, afterBlank = 0;
    at += unit.length;
  }
  parts.emplace_back(line.substr(first));
  return parts;
}
